% MODEL = NL_MODEL (E1, E2, ...)  model structure without linear part whose nonlinear list holds the elements E1, E2, ...
%
% The data of the elements stays shared: what is written in place into the model shows in E1, E2, ... as well.
function model = nl_model (varargin)
  NL = cell (numel (varargin), 3);
  NL(:, 3) = varargin(:);
  model = struct ('K', {cell(1, 3)}, 'NL', {NL});
end
