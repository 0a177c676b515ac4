% DONE = KEEP (FILE, S)         writes the fields of S as plain data, as a whole or not at all, in place of a file of that name
% DONE = KEEP (FILE, S, false)  not in place of another: DONE is false where there is one, even if it came a moment ago
%
% S is what flatten made, or has numbers only. The file is read again before it takes the name: on a full disk the host's save says nothing.
function done = keep (file, s, replace)
  [why, done] = qn.impl.files.write_data (file, s, nargin < 3 || replace);
  if ~isempty (why), error ('qn:input', 'qn.sweep: cannot write %s: %s', file, why); end
end
