% WHY = WRITE_DATA (FILE, S)                  writes the fields of S to a file that read_data reads; FILE is replaced as a whole or stays as it is
% [WHY, DONE] = WRITE_DATA (FILE, S, false)   not in place of another: DONE is false where there is one, even if it came a moment ago
%
% WHY: '' or what went wrong.
function [why, done] = write_data (file, s, replace)
  [why, done] = qn.impl.files.replace_file (file, @(part) made (part, s), nargin < 3 || replace);
end

function why = made (part, s)
  why = '';
  try
    save (part, '-struct', 's', '-v6');
    if isequaln (qn.impl.files.read_data (part), s), return, end
    wrong = 'what was read again is not what was written';
  catch err
    wrong = err.message;
  end
  why = sprintf ('the file came out wrong, is the disk full? (%s)', wrong);
end
