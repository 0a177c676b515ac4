% E = NONLINEAR_ELEMENT (SHAPE, SLOT, 'Table', X, F)  element with a force given by a table: knots X [m], forces F [N]
% E = NONLINEAR_ELEMENT (SHAPE, SLOT, 'Power', K, P)  element with the force K * x^P
%
% Input   SHAPE  row: what the element observes is SHAPE * u, and its force acts back through the same row
%         SLOT   where its force is kept in the vector of nonlinear forces, counted from 0
% Output  E      value for a handle of type 1003
function e = nonlinear_element (shape, slot, law, p1, p2)
  code = sum (double (law) .* 256 .^ (0:numel (law) - 1));
  iopt = [slot; 0; 0; 0; 0];
  switch law
    case 'Table'
      record = zeros (3, 1);
      opt = [code; record; p1(:); p2(:)];
      iopt = [iopt; 1 + numel(record); 1; numel(p1); 1];
    case 'Power'
      opt = [code; p1; p2];
    otherwise
      error ('nonlinear_element: no law called %s', law);
  end
  e = struct ('b', struct ('pr', shape(:), 'dims', [1, numel(shape)], 'trans', 1), 'c', shape, ...
              'unl', zeros (1, 1), 'snl', zeros (1, 1), 'opt', opt, 'iopt', int32 (iopt));
end
