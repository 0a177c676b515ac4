% S = POWER_ELEMENT (C, B, N)  value of an element (type 1003) that observes C*u and returns it unchanged as its N forces, spread by B
%
% C or B empty leaves the field out.
function s = power_element (c, b, n)
  s = struct ('unl', zeros (n, 1), 'snl', zeros (n, 1), 'opt', [491328597840 1 1]);
  if ~isempty (c), s.c = c; end
  if ~isempty (b), s.b = b; end
end
