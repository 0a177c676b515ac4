% QN.HARMONIC  steady response to a harmonic load, by harmonic balance and continuation
%
% Purpose
%   Finds periodic responses to the real part of LOAD * exp (2i pi f t) over a range of frequencies, stable or not, and follows the curve
%   around its folds (arc-length continuation). The load may grow with the frequency, and the model may have a gyroscopic matrix that
%   does: the response of a rotor to its unbalance, with the speed of rotation 2 pi f. The forces of the elements are evaluated by the
%   module's "residual" at the points of one period and brought back to harmonics (alternating frequency and time, Cameron and
%   Griffin, 1989).
%
% Calls
%   R = qn.harmonic (MODEL, LOAD, ELEMENTS, HERTZ, ...)
%
% Input
%   MODEL     from qn.modal, m modes
%   LOAD      m x 1 modal force amplitude (qn.load_at times forces) [N], complex where phases differ: c - 1i * s is c cos + s sin, not
%             zero
%   ELEMENTS  {LAW, C; ...} as for qn.simulation; laws without memory
%   HERTZ     [first last] frequency, in the direction to follow the curve [Hz]
%   Names and values
%     'harmonics'  number of harmonics (5)
%     'samples'    points of one period (128)
%     'points'     greatest number of points on the curve (400)
%     'step'       first step along the curve, relative (0.02)
%     'power'      the load is LOAD * (2 pi f)^power; 2 for an unbalance, with LOAD in kg m: m e at x, -1i * m e at y, or L{1, 1} -
%                  1i * L{2, 1} of L = qn.unbalance (...) (0)
%     'G'          gyroscopic matrix of the structure, n x n, skew: the damping gets 2 pi f * G. The model is the one at rest, made with
%                  'speed', 0 ([]). With 'power' 2 a model with a gyroscopic matrix needs it: zeros (n) for one that stands still and
%                  is shaken. What else of the model depends on the speed, its 'N' and 'by_speed', then turns with the frequency as
%                  well, also where G is zero
%
% Output
%   R     struct: hertz      1 x k frequencies along the curve
%                 cosines    m x k x (H+1), cosine coefficients of the modal response, harmonic 0 first
%                 sines      m x k x (H+1)
%                 amplitude  m x k, greatest value of each mode over a period
%
% Errors
%   qn:input     sizes do not fit, a value is not finite, LOAD is zero, or a law has a memory; 'power' 2 without 'G' for a model with a
%                gyroscopic or circulatory matrix at standstill; frequencies beyond the speeds of 'by_speed'
%   qn:diverged  no solution at the first frequency
%   The warning qn:harmonic says that the curve ends before the last frequency, and why; that it steps over a narrow resonance of a model
%               without elements; and that with 'power' 2 the gyroscopic matrix keeps one speed, which is not that of an unbalance
%
% Example
%   model = qn.modal (1, 1, 'damping', 0.05);
%   r = qn.harmonic (model, 0.2, {qn.cubic('stiffness', 0.5), qn.observe(model, 1)}, [0.05 0.3]);
%   plot (r.hertz, r.amplitude);
%
% See also qn.backbone, qn.static, qn.run
function r = harmonic (model, load, elements, hertz, varargin)
  if nargin < 1, model = []; end
  qn.impl.expect_result_of ('qn.harmonic', model, 'qn.modal');
  who = 'qn.harmonic';
  if nargin < 4, error ('qn:input', '%s: a load, elements and two frequencies expected; see help %s', who, who); end
  o = qn.impl.options (who, struct ('harmonics', 5, 'samples', 128, 'points', 400, 'step', 0.02, 'power', 0, 'G', []), ...
                       varargin);
  hertz = qn.impl.numbers (who, 'HERTZ', hertz, 2, 'above', 0, 'each', '[first last] frequency');
  if hertz(1) == hertz(2), error ('qn:input', '%s: "HERTZ" must be two different frequencies, got %g twice', who, hertz(1)); end
  o.points = qn.impl.count (who, 'points', o.points);
  o.step = qn.impl.scalar (who, 'step', o.step, realmin ());
  o.power = qn.impl.scalar (who, 'power', o.power, 0);
  if o.power == 2 && isempty (o.G), of_unbalance (who, model); end
  [model, rotation] = turning (who, model, o.G, 2 * pi * hertz);
  b = qn.impl.periodic (who, model, load, elements, o.harmonics, o.samples, o.power, rotation);
  free = onCleanup (@() delete (b.handles));
  if ~any (load(:)), error ('qn:input', '%s: "LOAD" is zero: there is no response to it. Of free motion see qn.backbone', who); end
  omega = 2 * pi * hertz;
  % First point: Newton at a fixed frequency, from the linear answer.
  z = b.linear (omega(1));
  [z, good] = qn.impl.newton (@(z) fixed (b, z, omega(1)), z);
  if ~good, error ('qn:diverged', '%s: no answer at %g Hz; begin farther from the resonances', who, hertz(1)); end
  [curve, ended] = qn.impl.along_curve (b.equations, z, omega, o.step, o.points);
  if ~isempty (ended)
    warning ('qn:harmonic', '%s: the curve ends at %.6g Hz, where %g Hz was wanted: %s', who, curve(end, end) / (2 * pi), hertz(2), ended);
  end
  if isempty (elements), passed_over (who, b, model, curve); end
  r = b.result (curve);
end

% Narrow resonances of a model without elements between two neighbouring points of the curve, in any of its modes.
function passed_over (who, b, model, curve)
  p = (size (curve, 1) - 1) / numel (model.w);
  each = @(z) sqrt (sum (reshape (z, p, []) .^ 2, 1));
  greatest = max (sqrt (sum (curve(1:end - 1, :) .^ 2, 1)));
  for w = sort (sqrt (max (real (eig (qn.impl.matrix (model.stiffness))), 0))).'
    k = find ((curve(end, 1:end - 1) - w) .* (curve(end, 2:end) - w) < 0, 1);
    if isempty (k), continue, end
    there = each (b.linear (w * (1 + 1e-9)));
    here = max (each (curve(1:end - 1, k)), each (curve(1:end - 1, k + 1)));
    [more, mode] = max (there ./ max (here, 1e-6 * greatest));
    if more > 1.5
      warning ('qn:harmonic', ['%s: the curve steps over the resonance at %.6g Hz, from %.6g to %.6g Hz: mode %d answers there with ' ...
                               '%.3g times as much as the curve has; follow it in a range around it'], who, w / (2 * pi), ...
               curve(end, k:k + 1) / (2 * pi), mode, there(mode) / max (here(mode), realmin ()));
    end
  end
end

% What of the model turns with the load, [] for nothing, and the model without it.
function [model, rotation] = turning (who, model, g, speeds)
  rotation = [];
  if isempty (g), return, end
  n = size (model.shapes, 1);
  turned = isfield (model, 'rotation') && ~isempty (model.rotation);
  tabled = turned && qn.impl.by_speed (model.rotation);
  if turned && model.rotation.speed ~= 0 && ~tabled
    error ('qn:input', '%s: "G" is taken at each frequency; the model has it at %g rad/s already: make it with ''speed'', 0', who, ...
           model.rotation.speed);
  end
  g = qn.impl.numbers (who, 'G', g, [n n]);
  beside = norm (g + g.', 'fro') / norm (g, 'fro');
  if beside > 1e-6, error ('qn:input', '%s: "G" must be skew (G.'' = -G): its symmetric part is %.2g of it', who, beside / 2); end
  if turned && ~any (g(:)) && any (model.rotation.G(:)) && (tabled || qn.impl.circulates (model.rotation))
    error ('qn:input', ['%s: with "G" zero the structure is shaken and does not turn, and the model has more that depends on the ' ...
                        'speed: make it without ("internal" 0, bearings of one speed)'], who);
  end
  rotation = struct ('G', 0);
  if turned
    rotation = model.rotation;
    if isfield (rotation, 'stiffness'), model.stiffness = rotation.stiffness; end
    model.damping = rotation.damping;
  end
  if tabled, qn.impl.within_table ([who ', "HERTZ" times 2 pi'], rotation.table, speeds); end
  rotation.G = qn.project (model.shapes, g);
end

% A load of unbalance turns as fast as the shaft, and the gyroscopic matrix with it.
function of_unbalance (who, model)
  if ~qn.impl.turns (model), return, end
  w = model.rotation.speed;
  if w == 0 && ~any (model.rotation.G(:))
    error ('qn:input', ['%s: a load of "power" 2 is that of an unbalance, and the model has a circulatory matrix or bearings by speed ' ...
                        'at standstill: give "G", zeros (%d), so that they turn with the load'], who, size (model.shapes, 1));
  end
  if w == 0
    error ('qn:input', ['%s: a load of "power" 2 is that of an unbalance, and the model has a gyroscopic matrix at standstill: give ' ...
                        'it as "G", so that it turns with the load, or "G", zeros (%d) if the structure is shaken and does not turn'], ...
           who, size (model.shapes, 1));
  end
  warning ('qn:harmonic', ['%s: the load of "power" 2 runs through the frequencies and the gyroscopic matrix stays that of %g rad/s: ' ...
                           'an unbalance turns with the shaft; make the model with ''speed'', 0 and give "G"'], who, w);
end

function [g, j] = fixed (b, z, omega)
  [g, j] = b.equations (z, omega);
end
