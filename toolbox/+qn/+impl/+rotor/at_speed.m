% R = AT_SPEED (R, SPEED)  fields M, K, C and Ks of a rotor with its bearings and seals at this speed [rad/s]
%
% Ks is the part of K of which modes can be taken: symmetric, and of each support what holds (eigenvalues from 0).
function r = at_speed (r, speed)
  r.speed = speed;
  p = r.parts;
  r.M = p.M;
  r.C = p.C;
  r.K = p.K;
  r.Ks = p.K;
  for s = p.supports
    k = value (s.K, speed);
    r.K = r.K + s.rows.' * k * s.rows;
    r.C = r.C + s.rows.' * value (s.C, speed) * s.rows;
    r.M = r.M + s.rows.' * value (s.M, speed) * s.rows;
    [v, d] = eig ((k + k.') / 2);
    r.Ks = r.Ks + s.rows.' * (v * diag (max (diag (d), 0)) * v.') * s.rows;
  end
end

function x = value (x, speed)
  if isa (x, 'function_handle'), x = x (speed); end
end
