% DISPLAY  what a v_handle stands for
%
%   display (V)
function display (v)
  fprintf ('%s = v_handle: %s\n', inputname (1), qn.describe (v.file));
end
