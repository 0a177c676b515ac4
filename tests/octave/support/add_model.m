% ADD_MODEL (R, MODEL, U, V)       adds the residual of a model structure to R, without accelerations, at U and V
% ADD_MODEL (R, MODEL, U, V, OPT)
function add_model (r, model, u, v, opt)
  if nargin < 5, opt = []; end
  quarn ('residual', r, model, u, v, [], opt, struct ('tag', 17));
end
