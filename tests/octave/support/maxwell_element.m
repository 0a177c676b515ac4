% E = MAXWELL_ELEMENT (Q, M, ELEMENTS, H, STEPS, W)  element of the law "Maxw" that observes each row of u as it is
% E = MAXWELL_ELEMENT (Q, M, ELEMENTS, H, STEPS, W, PAGE, PAGES)
%
% Q values of each of the ELEMENTS, M of them states; W holds the weights Cu and Dv (up to (Q+M)*Q values each), B (Q*M), A (M x M) and
% E (Q). PAGE values (Q*ELEMENTS) in each of PAGES pages (3) of unl and vnl.
function e = maxwell_element (q, m, elements, h, steps, w, page, pages)
  if nargin < 7, page = q * elements; end
  if nargin < 8, pages = 3; end
  block = (q + m) * q;
  parameters = [h; steps; 0; padded(w.Cu, block); padded(w.Dv, block); padded(w.B, q * m); w.A(:); padded(w.E, q)];
  e = state_element ('Maxw', parameters, [-1 0 q m elements], page, pages);
end

function y = padded (x, n)
  y = zeros (n, 1);
  y(1:numel (x)) = x(:);
end
