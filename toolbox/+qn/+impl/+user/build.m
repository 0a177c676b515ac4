% BUILD (FILE, SOURCE, HEADER, TARGET)  compiles the bytes SOURCE of a law in FILE, with the HEADER beside it, to the library TARGET
%
% All happens in a new folder that nobody else can guess; the library gets its name in one step. One that is there stays if it is whole: after
% the bytes of the linker comes their sum (qn.impl.user.seal). Another file of the user's is not found by #include "...": the content of
% a law is that of one file, by which it is kept.
function build (file, source, header, target)
  [~, random] = fileparts (tempname ());
  folder = fullfile (fileparts (target), ['quarn-' random]);
  [made, why] = mkdir (folder);
  if ~made || ~isempty (why), error ('qn:input', 'compiled laws cannot be written in %s: %s', fileparts (target), why); end
  clean = onCleanup (@() remove (folder));
  shown = regexprep (file, '[\x00-\x1f]', '?');
  shown = strrep (strrep (shown, '\', '\\'), '"', '\"');
  write (fullfile (folder, 'law.c'), [uint8(sprintf('#line 1 "%s"\n', shown)), uint8(source)]);
  write (fullfile (folder, 'quarn_law.h'), uint8 (header));
  library = fullfile (folder, 'law.so');
  words = [qn.impl.user.words(), {'-o', library, fullfile(folder, 'law.c'), '-lm'}];
  [status, text] = system (strjoin ([cellfun(@quoted, words, 'UniformOutput', false), {'2>&1'}], ' '));
  text = strtrim (strrep (text, [folder filesep()], ''));
  if status ~= 0 || ~exist (library, 'file')
    error ('qn:compile', 'the law %s does not compile with "%s":\n%s', file, strjoin (qn.impl.user.words (), ' '), text);
  end
  bytes = qn.impl.user.bytes_of (library);
  if isempty (strfind (char (bytes), 'quarn_law_entry'))
    error ('qn:compile', ['the law %s compiles, and there is no law in it: a line QUARN_LAW (function, rows, parameters, states) is ' ...
                          'expected'], file);
  end
  if ~isempty (text), warning ('qn:compile', 'the compiler says of the law %s:\n%s', file, text); end
  write (library, [bytes, qn.impl.user.seal(bytes)]);
  state = qn.impl.files.new_name (library, target);
  if strcmp (state, 'made') || qn.impl.user.whole (target), return, end
  [done, why] = qn.impl.files.rename_file (library, target);
  if ~done, error ('qn:input', 'the compiled law cannot be kept as %s: %s', target, why); end
end

% As one word of the shell, whatever characters are in it.
function w = quoted (w)
  w = ['''' strrep(w, '''', '''\''''') ''''];
end

function write (file, bytes)
  [id, why] = fopen (file, 'w');
  if id < 0, error ('qn:input', 'compiled laws cannot be written: %s', why); end
  count = fwrite (id, bytes, 'uint8');
  if fclose (id) ~= 0 || count ~= numel (bytes), error ('qn:input', 'compiled laws cannot be written: the disk is full'); end
end

function remove (folder)
  names = qn.impl.files.names_in (folder);
  for k = 1:numel (names), qn.impl.files.remove_file (fullfile (folder, names{k})); end
  [~, ~] = rmdir (folder);
end
