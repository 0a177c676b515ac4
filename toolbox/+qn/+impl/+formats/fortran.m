% F = FORTRAN (TEXT)  a Fortran format of equal numbers, such as (5I14), (1P,3D15.7) or 5E16.9; [] where it is another one
%
% F: per (numbers a line), width, whole (I) and scale (of P)
function f = fortran (text)
  f = [];
  text = upper (text(text ~= ' '));
  good = regexp (text, '^\(?(?:(-?\d{1,2})P,?)?(\d{0,4})([IEDFG])(\d{1,3})(?:\.(\d{1,3}))?(?:E\d{1,2})?\)?$', 'once');
  if isempty (good), return, end
  % Parts one by one: of several tokens those that are empty may be left out.
  scale = regexp (text, '-?\d+(?=P)', 'match', 'once');
  if isempty (scale), scale = '0'; end
  body = regexprep (text, '-?\d+P,?', '');
  per = regexp (body, '\d+(?=[IEDFG])', 'match', 'once');
  if isempty (per), per = '1'; end
  width = regexp (body, '(?<=[IEDFG])\d+', 'match', 'once');
  f = struct ('per', str2double (per), 'width', str2double (width), 'whole', any (body == 'I'), 'scale', str2double (scale));
  if f.per < 1 || f.width < 1 || f.per * f.width > 400, f = []; end
end
