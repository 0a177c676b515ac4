% B = PERIODIC (WHO, MODEL, LOAD, ELEMENTS, H, N, POWER, ROTATION)  harmonic-balance equations of a modal model
%
% The load is the real part of LOAD * omega^POWER * exp (i omega t). With ROTATION, that of a model, or [], its matrices are those of the
% speed omega; MODEL then has those that remain.
%
% Unknowns z: for every mode in turn [c0; c1; s1; ...; cH; sH]. B has the functions
%   equations (z, omega)  residual, Jacobian, and derivative for omega
%   linear (omega)        answer without elements
%   result (y)            structure of qn.harmonic from columns [z; omega]
% and the handles of the elements' laws, which the caller deletes. Every law is evaluated at all N points of a period in one call
% of "residual", as N springs side by side.
function b = periodic (who, model, load, elements, harmonics, n, power, rotation)
  if nargin < 8, [power, rotation] = deal (0, []); end
  m = numel (model.w);
  load = qn.impl.numbers (who, 'LOAD', load, m, 'complex', 'each', 'one a mode (qn.load_at times forces)');
  harmonics = qn.impl.count (who, 'harmonics', harmonics);
  n = qn.impl.count (who, 'samples', n);
  if n <= 4 * harmonics, error ('qn:input', '%s: %d harmonics need more than %d samples', who, harmonics, 4 * harmonics); end
  e = qn.impl.elements (model, elements, who);
  index = zeros (1, numel (e));
  for k = 1:numel (e)
    t = qn.impl.traits (e(k).law, 1);
    if t.memory || t.rates || size (e(k).observe, 1) > 1
      error ('qn:input', '%s: element %d must have a law of the displacement alone, without memory, and one observation row', who, ...
             e(k).item);
    end
  end
  for k = 1:numel (e), index(k) = quarn ('chandleset', 1003, qn.element (e(k).law, eye (n))); end
  b = struct ('handles', chandle (index));
  p = 2 * harmonics + 1;
  angle = 2 * pi * (0:n - 1) / n;
  series = ones (p, n);
  back = ones (n, p) / n;
  turn = zeros (p, p);
  for k = 1:harmonics
    series(2 * k:2 * k + 1, :) = [cos(k * angle); sin(k * angle)];
    back(:, 2 * k:2 * k + 1) = 2 / n * series(2 * k:2 * k + 1, :).';
    turn(2 * k:2 * k + 1, 2 * k:2 * k + 1) = [0 k; -k 0];
  end
  push = zeros (p, m);
  if harmonics > 0, push(2:3, :) = [real(load(:)), -imag(load(:))].'; end
  % In one period x = series.' * z; its rate is omega * turn * z.
  linear = @(w) of_speed (w, model, rotation, p, turn);
  by_omega = @(w) slope_of (w, model, rotation, p, turn);
  grown = @(w) w ^ power * push(:);
  b.linear = @(w) linear (w) \ grown (w);
  more = @(w) power * w ^ (power - 1) * push(:);
  b.equations = @(z, w) equations (z, w, linear, by_omega, grown, more, e, index, series, back, p, m, n);
  b.result = @(y) result (y, series, harmonics, m);
end

function a = of_speed (w, model, rotation, p, turn)
  [k, c] = matrices (w, model, rotation);
  a = kron (k, eye (p)) + w * kron (c, turn) + w ^ 2 * kron (eye (size (k)), turn ^ 2);
end

% The derivative of it for w.
function a = slope_of (w, model, rotation, p, turn)
  [k, c, dk, dc] = matrices (w, model, rotation);
  a = kron (dk, eye (p)) + kron (c + w * dc, turn) + 2 * w * kron (eye (size (k)), turn ^ 2);
end

% Stiffness and damping at the speed w and their derivatives.
function [k, c, dk, dc] = matrices (w, model, rotation)
  k = qn.impl.matrix (model.stiffness);
  c = qn.impl.matrix (model.damping);
  [dk, dc] = deal (zeros (size (k)));
  if isempty (rotation), return, end
  dc = dc + rotation.G;
  if qn.impl.circulates (rotation), dk = dk + rotation.N; end
  [k, c] = deal (k + w * dk, c + w * dc);
  if ~qn.impl.by_speed (rotation), return, end
  [more_k, more_c, slope_k, slope_c] = qn.impl.bearings_at (rotation.table, w);
  [k, c, dk, dc] = deal (k + more_k, c + more_c, dk + slope_k, dc + slope_c);
end

function [g, j, slope] = equations (z, w, linear, by_omega, grown, more, e, index, series, back, p, m, n)
  j = linear (w);
  g = j * z - grown (w);
  q = reshape (z, p, m);
  for k = 1:numel (e)
    x = (q * e(k).observe.').' * series;
    h = chandle (index(k));
    width = 1e-6 * max (max (abs (x)), 1e-9);
    f = evaluate (h, x, n);
    stiffness = (evaluate (h, x + width, n) - evaluate (h, x - width, n)) / (2 * width);
    g = g + kron (e(k).command.', (f * back).');
    j = j + kron (e(k).command.' * e(k).observe, back.' * bsxfun (@times, stiffness.', series.'));
  end
  slope = by_omega (w) * z - more (w);
end

function f = evaluate (h, x, n)
  f = zeros (n, 1);
  none = zeros (n, 1);
  quarn ('residual', f, h, qn.impl.fresh (x(:)), none, none);
  f = f.';
end

function r = result (y, series, harmonics, m)
  k = size (y, 2);
  p = 2 * harmonics + 1;
  r = struct ('hertz', y(end, :) / (2 * pi), 'cosines', zeros (m, k, harmonics + 1), 'sines', zeros (m, k, harmonics + 1), ...
              'amplitude', zeros (m, k));
  for i = 1:m
    z = y((i - 1) * p + (1:p), :);
    r.cosines(i, :, :) = reshape (z([1, 2:2:p], :).', [1, k, harmonics + 1]);
    r.sines(i, :, 2:end) = reshape (z(3:2:p, :).', [1, k, harmonics]);
    r.amplitude(i, :) = max (abs (series.' * z), [], 1);
  end
end
