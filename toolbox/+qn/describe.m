% QN.DESCRIBE  a law, a handle or its value in words, with its numbers
%
% Purpose
%   Says what is in the packed vectors.
%
% Calls
%   qn.describe (X)
%   TEXT = qn.describe (X)
%
% Input
%   X      a law or a bank of laws; a chandle vector; the index of a handle; or the value of one, as qn.element, qn.pack and
%          quarn ('chandleget', i) give them
%
% Output
%   TEXT   one line, for several laws or handles one line each; without an output argument it is printed
%
% Errors
%   qn:input  X is none of these
%
% Example
%   qn.describe (qn.stop ('gap', 0.015, 'stiffness', 1e8));
%   text = qn.describe (qn.element (qn.cubic ('stiffness', 1e9), [1 0 -1]));
%
% See also qn.law, qn.element, chandle
function text = describe (x)
  if isa (x, 'chandle')
    lines = cell (1, numel (x));
    for k = 1:numel (x), lines{k} = one_handle (remi (x, k)); end
  elseif isstruct (x) && isfield (x, 'kind')
    lines = arrayfun (@qn.impl.law_text, x, 'uniformoutput', false);
  elseif isstruct (x) || isa (x, 'v_handle')
    lines = {qn.impl.value_text(x)};
  elseif isnumeric (x)
    lines = {one_handle(qn.impl.numbers ('qn.describe', 'X', x, [1 1], 'from', 0, 'whole'))};
  else
    error ('qn:input', 'qn.describe: a law, a handle or its value expected, got an array of class %s', class (x));
  end
  lines = strjoin (lines(:).', sprintf ('\n'));
  if nargout > 0
    text = lines;
  else
    fprintf ('%s\n', lines);
  end
end

function text = one_handle (i)
  if any (quarn ('chandleget') == i)
    text = sprintf ('handle %d: %s', i, qn.impl.value_text (quarn ('chandleget', i)));
  else
    text = sprintf ('handle %d: free', i);
  end
end
