% S = RANDOM_STRUCTURE (KIND)  a random linear structure that does not grow, with a motion to compute
%
% KIND 'none', 'modal', 'rayleigh', 'dashpots', 'gyroscopic' or 'bearings'. S has M, C, K (whole, for a reference), model (from qn.modal),
% u0, v0, load (column B and angular frequency w of B cos (w t)), and step and steps: three periods of the slowest motion, with a step at
% which the phase error of average acceleration in the fastest oscillation, w^3 h^2/12 times the time, stays below 2 %.
function s = random_structure (kind)
  s = draw (kind);
  while any (real (s.poles) > 1e-9 * max (abs (s.poles))), s = draw (kind); end
  oscillating = abs (imag (s.poles)) > 1e-6 * abs (s.poles);
  fast = max ([s.model.w; abs(imag (s.poles))]);
  slow = min (abs (s.poles(oscillating)));
  if isempty (slow), slow = min (s.model.w); end
  duration = 2 * pi * 3 / max (slow, fast / 20);
  s.step = 0.98 * sqrt (12 * 0.02 / (fast ^ 3 * duration));
  s.steps = ceil (duration / s.step);
  s.load = struct ('B', randn (numel (s.u0), 1) * fast ^ 2 * (rand < 0.5), 'w', fast * 0.8 * rand);
end

function s = draw (kind)
  n = 2 + floor (9 * rand);
  free = randn (n);
  m = diag (0.5 + 2 * rand (n, 1));
  k = 10 ^ (2 + 4 * rand) * (free * free.' / n + 0.2 * eye (n));
  s = struct ('M', m, 'C', zeros (n), 'K', k, 'u0', randn (n, 1), 'v0', zeros (n, 1));
  w = sqrt (eig (k, m));
  s.v0 = randn (n, 1) * mean (w) * (rand < 0.7);
  switch kind
    case 'none'
      s.model = qn.modal (k, m);
    case 'modal'
      zeta = 0.2 * rand (n, 1) .* (rand (n, 1) < 0.8);
      s.model = qn.modal (k, m, 'damping', zeta);
      s.C = m * s.model.shapes * diag (2 * zeta .* s.model.w) * s.model.shapes.' * m;
    case 'rayleigh'
      ab = [0.05 * min(w), 0.1 / max(w)] .* rand (1, 2);
      s.model = qn.modal (k, m, 'rayleigh', ab);
      s.C = ab(1) * m + ab(2) * k;
    case 'dashpots'
      for j = 1:1 + floor (3 * rand)
        pair = zeros (n, 1);
        pair(1 + floor (n * rand)) = 1;
        pair(1 + floor (n * rand)) = -1;
        s.C = s.C + 10 ^ (-2 + 5 * rand) * mean (w) * mean (diag (m)) * (pair * pair.');
      end
      zeta = 0.02 * (rand < 0.5);
      s.model = qn.modal (k, m, 'C', s.C, 'damping', zeta);
      s.C = s.C + m * s.model.shapes * diag (2 * zeta * s.model.w) * s.model.shapes.' * m;
    case 'gyroscopic'
      g = randn (n);
      g = g - g.';
      speed = mean (w) * 10 ^ (-1 + 1.5 * rand);
      c = rand * 0.02 * mean (w) * eye (n) * (rand < 0.5);
      s.model = qn.modal (k, m, 'G', g, 'speed', speed, 'C', c);
      s.C = speed * g + c;
    case 'bearings'
      cross = randn (n);
      more = 0.3 * rand * norm (k) / n * (eye (n) + 0.5 * (cross - cross.') + 0.1 * cross);
      s.C = mean (w) * 10 ^ (-1.5 + 2 * rand) * (eye (n) + 0.2 * randn (n));
      s.model = qn.modal (k, m, 'K', more, 'C', s.C);
      s.K = k + more;
  end
  s.poles = eig ([zeros(n), eye(n); -(m \ s.K), -(m \ s.C)]);
end
