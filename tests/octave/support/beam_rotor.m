% R = BEAM_ROTOR (ELEMENTS)  a steel shaft of so many beam elements with three disks in two bearings, plainly assembled
%
% Euler-Bernoulli elements with rotary inertia; every node has the displacements x, y and the slopes dx/dz, dy/dz (Nelson and McVaugh,
% 1976). R has M, K [symmetric], C (bearings), G (skew, to be multiplied by the speed), bearings (stiffness, not symmetric), and disk
% (number of the x of the disk in the middle).
function r = beam_rotor (elements)
  nodes = elements + 1;
  n = 4 * nodes;
  r = struct ('M', zeros (n), 'K', zeros (n), 'C', zeros (n), 'G', zeros (n), 'bearings', zeros (n), 'disk', 4 * round (elements / 2) + 1);
  l = 1.2 / elements;
  radius = 0.025;
  area = pi * radius ^ 2;
  inertia = pi * radius ^ 4 / 4;
  k = 2.1e11 * inertia / l ^ 3 * [12 6*l -12 6*l; 6*l 4*l^2 -6*l 2*l^2; -12 -6*l 12 -6*l; 6*l 2*l^2 -6*l 4*l^2];
  m = 7850 * area * l / 420 * [156 22*l 54 -13*l; 22*l 4*l^2 13*l -3*l^2; 54 13*l 156 -22*l; -13*l -3*l^2 -22*l 4*l^2];
  turning = 7850 * inertia / (30 * l) * [36 3*l -36 3*l; 3*l 4*l^2 -3*l -l^2; -36 -3*l 36 -3*l; 3*l -l^2 -3*l 4*l^2];
  for e = 1:elements
    x = 4 * (e - 1) + [1 3 5 7];
    for at = {x, x + 1}
      r.K(at{1}, at{1}) = r.K(at{1}, at{1}) + k;
      r.M(at{1}, at{1}) = r.M(at{1}, at{1}) + m + turning;
    end
    r.G(x, x + 1) = r.G(x, x + 1) + 2 * turning;
    r.G(x + 1, x) = r.G(x + 1, x) - 2 * turning;
  end
  for disk = [0.25 0.5 0.8; 8 14 10]
    at = 4 * round (disk(1) * elements) + (1:4);
    polar = disk(2) * 0.15 ^ 2 / 2;
    r.M(at, at) = r.M(at, at) + diag ([disk(2), disk(2), polar / 2, polar / 2]);
    r.G(at(3), at(4)) = r.G(at(3), at(4)) + polar;
    r.G(at(4), at(3)) = r.G(at(4), at(3)) - polar;
  end
  for node = [1 nodes]
    at = 4 * (node - 1) + (1:2);
    r.bearings(at, at) = [2e7 4e6; -6e6 3e7];
    r.C(at, at) = [3e4 2e3; 1e3 4e4];
  end
end
