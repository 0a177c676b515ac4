% [LINES, SYMMETRIC] = KEYWORDS (T)  the lines of data in a file of coordinate text, and what its keyword says of symmetry ([]: nothing)
function [lines, symmetric] = keywords (t)
  symmetric = [];
  n = numel (t.first);
  starred = find (t.text(min (t.first, numel (t.text))) == '*' & t.last >= t.first);
  for k = starred
    text = upper (t.text(t.first(k):t.last(k)));
    if strncmp (text, '**', 2), continue, end
    parts = strtrim (strsplit (text, ','));
    if ~strcmp (parts{1}, '*MATRIX INPUT')
      qn.impl.formats.refuse (t, k, 'the keyword "%s"; only *MATRIX INPUT is read', qn.impl.formats.shown (parts{1}));
    end
    for part = parts(2:end)
      word = regexprep (part{1}, '\s*=\s*', '=');
      switch word
        case 'TYPE=UNSYMMETRIC', symmetric = false;
        case 'TYPE=SYMMETRIC', symmetric = true;
        otherwise
          if isempty (regexp (word, '^NAME=', 'once'))
            qn.impl.formats.refuse (t, k, 'the option "%s" of *MATRIX INPUT is not read', qn.impl.formats.shown (word));
          end
      end
    end
  end
  lines = setdiff (1:n, starred);
end
