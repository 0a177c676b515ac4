% R = AT_SPEED (R, SPEED)  fields M, K, C and Ks of a rotor with its bearings and seals at this speed [rad/s]
%
% Ks is the part of K of which modes can be taken: symmetric, and of each support what holds (eigenvalues from 0). A function that several
% supports share is called once.
function r = at_speed (r, speed)
  r.speed = speed;
  r.parts.speed = speed;
  p = r.parts;
  r.M = p.M;
  r.C = p.C;
  r.K = p.K;
  r.Ks = p.K;
  known = cell (0, 2);
  for s = p.supports
    [k, known] = stiffness (s, speed, known);
    c = value (s.C, speed);
    if iscell (k), [k, c] = deal (k{1}, c + k{2}); end
    r.K = r.K + s.rows.' * k * s.rows;
    r.C = r.C + s.rows.' * c * s.rows;
    r.M = r.M + s.rows.' * value (s.M, speed) * s.rows;
    [v, d] = eig ((k + k.') / 2);
    r.Ks = r.Ks + s.rows.' * (v * diag (max (diag (d), 0)) * v.') * s.rows;
  end
end

function [k, known] = stiffness (s, speed, known)
  k = s.K;
  if ~isa (k, 'function_handle'), return, end
  for j = 1:size (known, 1)
    if isequal (known{j, 1}, {s.source, size(s.rows, 1)})
      k = known{j, 2};
      return
    end
  end
  k = s.K (speed);
  known(end + 1, :) = {{s.source, size(s.rows, 1)}, k};
end

function x = value (x, speed)
  if isa (x, 'function_handle'), x = x (speed); end
end
