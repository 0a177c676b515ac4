% DISPLAY  what each handle of a chandle vector is
%
%   display (H)
%
% One line per element: its index in the registry and what its value says. An index that is not registered (any more) is said to
% be free.
function display (h)
  fprintf ('%s = chandle vector of %d\n', inputname (1), numel (h));
  if numel (h) > 0, fprintf ('  %s\n', strrep (qn.describe (h), sprintf ('\n'), sprintf ('\n  '))); end
end
