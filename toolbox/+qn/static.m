% QN.STATIC  static equilibrium with nonlinear elements
%
% Purpose
%   Solves K q + forces (q) = LOAD, K the modal stiffness, by Newton's method on the module's residual, with steps halved until the
%   residual falls.
%
% Calls
%   [Q, INFO] = qn.static (MODEL, LOAD, ELEMENTS)
%   [Q, INFO] = qn.static (MODEL, LOAD, ELEMENTS, Q0)
%
% Input
%   MODEL     from qn.modal, m modes
%   LOAD      m x 1 modal force (qn.load_at times forces) [N]
%   ELEMENTS  {LAW, C; ...} as for qn.simulation; friction laws are refused, as their equilibrium depends on the past. Of a Maxwell
%             element the spring beside the branches remains.
%   Q0        where to start (0)
%
% Output
%   Q         m x 1 modal displacement; physical ones are MODEL.shapes * Q [m]
%   INFO      struct: residual (relative to the load), iterations, forces (of the elements [N])
%
% Errors
%   qn:input     sizes do not fit, a value is not finite, or a law has a memory
%   qn:diverged  no equilibrium found in 100 iterations
%
% Example
%   model = qn.modal (1e4, 1);
%   q = qn.static (model, qn.load_at (model, 1) * 300, {qn.gap('gap', 0.01, 'stiffness', 1e5), qn.observe(model, 1)});
%   u = model.shapes * q                  % (300 + 1e5 * 0.01) / (1e4 + 1e5)
%
% See also qn.harmonic, qn.backbone, qn.law
function [q, info] = static (model, load, elements, q)
  if nargin < 1, model = []; end
  qn.impl.expect_result_of ('qn.static', model, 'qn.modal');
  who = 'qn.static';
  if nargin < 3, error ('qn:input', '%s: a load and elements ({} for none) expected; see help %s', who, who); end
  m = numel (model.w);
  if nargin < 4, q = zeros (m, 1); end
  load = qn.impl.numbers (who, 'LOAD', load, m, 'each', 'one a mode (qn.load_at times forces)');
  load = load(:);
  q = qn.impl.numbers (who, 'Q0', q, m, 'each', 'one a mode');
  q = q(:);
  model.damping = zeros (m, 1);
  sim = struct ('model', model);
  qn.impl.elements (model, elements, who);
  [sim.elements, sim.states, sim.slots] = qn.impl.elements (model, qn.impl.without_memory (who, elements), who);
  h = qn.impl.register (qn.impl.values (sim, 1));
  free = onCleanup (@() delete (h));
  scale = max (norm (load), realmin ());
  try
    r = residual (h, q, load);
  catch err
    qn.impl.named_element (who, err, sim.elements);
  end
  for n = 0:100
    if norm (r) <= 1e-12 * scale || norm (r) <= 1e-14 * norm (qn.impl.product (model.stiffness, q)), break, end
    if n == 100, error ('qn:diverged', '%s: no equilibrium found; residual %g of the load. Start nearer to it, or load in steps', who, ...
                        norm (r) / scale); end
    step = -tangent (h, q, load, m) \ r;
    cut = 1;
    next = residual (h, q + step, load);
    while norm (next) >= norm (r) && cut > 1e-6
      cut = cut / 2;
      next = residual (h, q + cut * step, load);
    end
    if cut <= 1e-6, break, end
    q = q + cut * step;
    r = next;
  end
  if norm (r) > 1e-6 * scale && norm (r) > 1e-9 * norm (qn.impl.product (model.stiffness, q))
    error ('qn:diverged', '%s: no equilibrium found; residual %g of the load. Start nearer to it, or load in steps', who, norm (r) / scale);
  end
  [unused, forces] = qn.impl.forces (sim, qn.impl.values (sim, 1), q, zeros (m, 1));
  info = struct ('residual', norm (r) / scale, 'iterations', n, 'forces', forces(qn.impl.force_slots (sim)));
end

function r = residual (h, q, load)
  r = -load * 1;
  none = zeros (numel (q), 1);
  quarn ('residual', r, h, qn.impl.fresh (q), none, none);
end

% Central differences, column by column; a displacement of its own size is felt without crossing a kink.
function k = tangent (h, q, load, m)
  k = zeros (m, m);
  width = 1e-7 * max (max (abs (q)), 1e-6);
  for j = 1:m
    d = zeros (m, 1);
    d(j) = width;
    k(:, j) = (residual (h, q + d, load) - residual (h, q - d, load)) / (2 * width);
  end
end
