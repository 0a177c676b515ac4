% W = HIGHEST_KEPT (MODEL)  angular frequency of the highest mode [rad/s], where modes were left out above it; Inf where none were
%
% Shapes of 'attach' are no modes. What has no mass has no mode either.
function w = highest_kept (model)
  w = Inf;
  modes = numel (model.w);
  if isfield (model, 'attached'), modes = modes - model.attached; end
  if modes < 1 || modes >= sum (full (any (model.M, 2))), return, end
  w = max (model.w(1:modes));
end
