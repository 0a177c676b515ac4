% EVALUATE_IN_MODEL (E, U, V, R)  evaluates the element E of a model structure without matrices through "residual" at U and V
%
% The arrays of E and R are changed in place.
function evaluate_in_model (e, u, v, r)
  none = matrix_lines (sparse (numel (u), numel (u)));
  model = struct ('K', {{none, none, none}}, 'NL', {{'element', 1, e}});
  quarn ('residual', r, model, u, v, zeros (size (u)), [0 0], []);
end
