% [HASH, SOURCE, HEADER] = CONTENT (FILE)  SHA-256 of a law's source, the header and the words of the compiler, and the bytes of both files
function [hash, source, header] = content (file)
  [source, why] = bytes_of (file);
  if ~isempty (why), error ('qn:input', 'the file %s of a compiled law cannot be read: %s', file, why); end
  [header, why] = bytes_of (fullfile (fileparts (fileparts (fileparts (fileparts (mfilename ('fullpath'))))), 'quarn_law.h'));
  if ~isempty (why), error ('qn:input', 'quarn_law.h is missing in the toolbox: %s', why); end
  words = double (strjoin (qn.impl.user.words (), char (10)));
  hash = sha256 ([source, 0, header, 0, words]);
end

function [bytes, why] = bytes_of (file)
  bytes = [];
  [id, why] = fopen (file, 'r');
  if id < 0, return, end
  bytes = fread (id, [1, Inf], 'uint8');
  fclose (id);
  why = '';
  if isempty (bytes), why = 'it is empty'; end
end

function text = sha256 (bytes)
  if exist ('OCTAVE_VERSION', 'builtin')
    text = hash ('sha256', char (bytes));
  else
    digest = java.security.MessageDigest.getInstance ('SHA-256');
    digest.update (uint8 (bytes));
    text = lower (reshape (dec2hex (typecast (digest.digest (), 'uint8'), 2).', 1, []));
  end
end
