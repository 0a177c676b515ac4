% E = MOTION (SIM, S)  root of twice the kinetic and strain energy of the structure [m/s sqrt(kg)]
function e = motion (sim, s)
  m = numel (sim.model.w);
  q = s.u(1:m);
  k = sim.model.stiffness;
  if size (k, 2) == 1
    strain = sum (k .* q .^ 2);
  else
    strain = q.' * k * q;
  end
  e = sqrt (max (sum (s.v(1:m) .^ 2) + strain, 0));
end
