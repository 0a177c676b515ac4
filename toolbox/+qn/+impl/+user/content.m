% [HASH, SOURCE, HEADER] = CONTENT (FILE)  SHA-256 of a law's source, the header and the words of the compiler, and the bytes of both files
function [hash, source, header] = content (file)
  [source, why] = qn.impl.user.bytes_of (file);
  if ~isempty (why), error ('qn:input', 'the file %s of a compiled law cannot be read: %s', file, why); end
  [header, why] = qn.impl.user.bytes_of (fullfile (fileparts (fileparts (fileparts (fileparts (mfilename ('fullpath'))))), 'quarn_law.h'));
  if ~isempty (why), error ('qn:input', 'quarn_law.h is missing in the toolbox: %s', why); end
  words = double (strjoin (qn.impl.user.words (), char (10)));
  hash = qn.impl.user.sha256 ([source, 0, header, 0, words]);
end
