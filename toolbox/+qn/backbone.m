% QN.BACKBONE  frequency of free vibration against its amplitude
%
% Purpose
%   Follows one mode of the undamped structure with its nonlinear elements from small to large amplitudes (nonlinear normal mode),
%   by harmonic balance on the module's "residual". Resonances of the damped, driven structure are along this curve.
%
% Calls
%   [HERTZ, R] = qn.backbone (MODEL, ELEMENTS, AMPLITUDE, ...)
%
% Input
%   MODEL      from qn.modal; its damping is left out
%   ELEMENTS   {LAW, C; ...} as for qn.simulation; laws without memory
%   AMPLITUDE  1 x k, ascending: displacement of the observed point at its turning point [m]
%   Names and values
%     'mode'       number of the mode to follow (1)
%     'row'        observation row, or a degree of freedom, whose amplitude is meant (C of the first element)
%     'harmonics'  number of harmonics (7)
%     'samples'    points of one period (256)
%
% Output
%   HERTZ      1 x k frequencies [Hz]
%   R          struct as from qn.harmonic
%
% Errors
%   qn:input     sizes do not fit, a value is not finite, a law has a memory, or damping or stiffness of the model is not symmetric
%   qn:diverged  the curve cannot be followed; take amplitudes closer to one another
%
% Example
%   model = qn.modal (1, 1);
%   a = 0.1:0.1:2;
%   hertz = qn.backbone (model, {qn.cubic('stiffness', 1), qn.observe(model, 1)}, a);
%   plot (hertz, a);
%
% See also qn.harmonic, qn.cubic, qn.static
function [hertz, r] = backbone (model, elements, amplitude, varargin)
  if nargin < 1, model = []; end
  qn.impl.expect_result_of ('qn.backbone', model, 'qn.modal');
  who = 'qn.backbone';
  if nargin < 3, error ('qn:input', '%s: elements and amplitudes expected; see help %s', who, who); end
  o = qn.impl.options (who, struct ('mode', 1, 'row', [], 'harmonics', 7, 'samples', 256), varargin);
  m = numel (model.w);
  o.mode = qn.impl.count (who, 'mode', o.mode, m);
  o.harmonics = qn.impl.count (who, 'harmonics', o.harmonics);
  amplitude = qn.impl.numbers (who, 'AMPLITUDE', amplitude, [], 'list', 'ascending', 'above', 0);
  amplitude = reshape (amplitude, 1, []);
  if isempty (o.row)
    if ~iscell (elements) || size (elements, 2) < 2, error ('qn:input', '%s: without elements a "row" is needed', who); end
    o.row = elements{1, 2};
  end
  row = qn.impl.observation_rows (model, o.row, 'qn.backbone: ', 'row');
  if size (row, 1) ~= 1, error ('qn:input', '%s: "row" must be one observation row, got %d', who, size (row, 1)); end
  start = no_skew (who, model, o.mode);
  model.damping = zeros (m, 1);
  b = qn.impl.periodic (who, model, zeros (m, 1), elements, o.harmonics, o.samples);
  free = onCleanup (@() delete (b.handles));
  % Free undamped motion can start at a turning point: cosines only.
  p = 2 * o.harmonics + 1;
  kept = bsxfun (@plus, [1, 2:2:p].', p * (0:m - 1));
  kept = kept(:);
  peak = kron (row, ones (1, o.harmonics + 1));
  y = zeros (numel (kept) + 1, 1);
  y(2 + (0:m - 1) * (o.harmonics + 1)) = start.shape * (amplitude(1) / (row * start.shape));
  y(end) = start.w;
  points = zeros (m * p + 1, numel (amplitude));
  for k = 1:numel (amplitude)
    if k > 1, y(1:end - 1) = y(1:end - 1) * (amplitude(k) / amplitude(k - 1)); end
    [y, good] = qn.impl.newton (@(y) free_motion (b, y, kept, m * p, peak, amplitude(k)), y);
    if ~good, error ('qn:diverged', '%s: lost the curve at an amplitude of %g m', who, amplitude(k)); end
    points(kept, k) = y(1:end - 1);
    points(end, k) = y(end);
  end
  r = b.result (points);
  hertz = r.hertz;
end

% The mode to begin with. Motion with turning points, as cosines have them, needs symmetric matrices.
function start = no_skew (who, model, mode)
  for name = {'damping', 'stiffness'}
    x = model.(name{1});
    if size (x, 2) > 1 && norm (x - x.', 'fro') > 1e-9 * norm (x, 'fro')
      error ('qn:input', ['%s: the modal %s is not symmetric (gyroscopic matrix, bearings with cross coupling): such a structure ' ...
                          'has no free motion with common turning points; use qn.harmonic'], who, name{1});
    end
  end
  start = struct ('shape', zeros (numel (model.w), 1), 'w', model.w(mode));
  start.shape(mode) = 1;
  if size (model.stiffness, 2) > 1
    [shapes, squares] = eig ((model.stiffness + model.stiffness.') / 2);
    [squares, order] = sort (diag (squares));
    start = struct ('shape', shapes(:, order(mode)), 'w', sqrt (max (squares(mode), 0)));
  end
end

function [g, j] = free_motion (b, y, kept, n, peak, amplitude)
  z = zeros (n, 1);
  z(kept) = y(1:end - 1);
  [g, j, slope] = b.equations (z, y(end));
  g = [g(kept); peak * y(1:end - 1) - amplitude];
  j = [j(kept, kept), slope(kept); peak, 0];
end
