% T = OPEN_TEXT (WHO, FILE)  a file as characters, with the places of its lines
%
% T has text (what is not ASCII is "?" in it, as hosts read characters differently), bytes (the same as they are), first and last (a
% place for each line, without its end), who and file. A line ends with LF, CR LF or CR; the last one
% may have no end. A byte order mark of UTF-8 is dropped.
function t = open_text (who, file)
  file = qn.impl.chars (file);
  if ~ischar (file) || size (file, 1) ~= 1
    error ('qn:input', '%s: "FILE" must be the name of a file, got an array of class %s', who, class (file));
  end
  if exist (file, 'dir') == 7, error ('qn:input', '%s: cannot open %s: it is a folder', who, file); end
  [id, why] = fopen (file, 'r');
  if id < 0, error ('qn:input', '%s: cannot open %s: %s', who, file, why); end
  closed = onCleanup (@() fclose (id));
  bytes = fread (id, [1 Inf], 'uint8=>uint8');
  if isempty (bytes), error ('qn:input', '%s: %s is empty', who, file); end
  if numel (bytes) >= 3 && isequal (bytes(1:3), uint8 ([239 187 191])), bytes = bytes(4:end); end
  if isempty (bytes), error ('qn:input', '%s: %s is empty', who, file); end
  text = char (bytes);
  text(bytes > 127) = '?';
  feed = text == char (10);
  return_ = text == char (13);
  ends = find (feed | (return_ & ~[feed(2:end), false]));
  first = [1, ends + 1];
  last = [ends - 1, numel(text)];
  paired = ends(feed(ends) & ends > 1);
  paired = paired(return_(paired - 1));
  [unused, at] = ismember (paired, ends);
  last(at) = last(at) - 1;
  if first(end) > numel (text)
    first(end) = [];
    last(end) = [];
  end
  t = struct ('who', who, 'file', file, 'text', text, 'bytes', bytes, 'first', first, 'last', last);
end
