% WHY = WRITE_DATA (FILE, S)                  writes the fields of S to a file that read_data reads; FILE is replaced as a whole or stays as it is
% [WHY, DONE] = WRITE_DATA (FILE, S, false)   not in place of another: DONE is false where there is one, even if it came a moment ago
%
% WHY: '' or what went wrong. The host's own load, a third of the time of read_data, may read what was written a moment ago into a folder of
% our own and holds data only; where it gives back a text in another form than it took it, read_data decides.
function [why, done] = write_data (file, s, replace)
  [why, done] = qn.impl.files.replace_file (file, @(part) made (part, s), nargin < 3 || replace);
end

function why = made (part, s)
  why = '';
  try
    save (part, '-struct', 's', '-v6');
    if (plain (s) && isequaln (load (part, '-mat'), s)) || isequaln (qn.impl.files.read_data (part), s), return, end
    wrong = 'what was read again is not what was written';
  catch err
    wrong = err.message;
  end
  why = sprintf ('the file came out wrong, is the disk full? (%s)', wrong);
end

% Whether a value is what read_data reads, in all of its parts: of real numbers, texts and truth values.
function is = plain (x)
  is = true;
  if isstruct (x)
    x = struct2cell (x);
  elseif ~iscell (x)
    is = (isnumeric (x) || ischar (x) || islogical (x)) && isreal (x);
    return
  end
  for k = 1:numel (x), is = is && plain (x{k}); end
end
