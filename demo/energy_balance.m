% E = ENERGY_BALANCE (MODES, T, AG, Q, POTENTIAL)  where the energy of a run is, at every time
%
% Input   MODES, T, AG  as for INTEGRATE_MODES
%         Q             modal displacements, one column a time, at rest at T(1)
%         POTENTIAL     row: energy stored in the nonlinear elements [J]
% Output  E             struct of rows [J]: kinetic, strain, potential, damped, work, and their residual
%                       kinetic + strain + potential + damped - work; v_end, the modal velocities at the end
%
% Average acceleration means dq = h (v1 + v2) / 2 for every step, which gives the velocities from the displacements without
% an error of approximation. Work and dissipation are summed as mean force times dq. Integrated so, a linear run balances to
% rounding, whatever the step; what is left in a run with contacts is the error made in the nonlinear forces.
function e = energy_balance (modes, t, ag, q, potential)
  n_time = numel (t);
  h = t(end) / (n_time - 1);
  e = struct ('kinetic', zeros (1, n_time), 'strain', zeros (1, n_time), 'potential', potential, ...
              'damped', zeros (1, n_time), 'work', zeros (1, n_time), 'v_end', zeros (numel (modes.w), 1));
  flip = (-1) .^ (1:n_time - 1);
  for i = 1:numel (modes.w)
    x = q(i, :);
    dx = diff (x);
    v = [0, flip .* cumsum(flip .* dx * 2 / h)];
    e.kinetic = e.kinetic + v .^ 2 / 2;
    e.strain = e.strain + modes.w(i) ^ 2 * x .^ 2 / 2;
    e.damped = e.damped + [0, cumsum(modes.zeta * modes.w(i) * (v(1:end - 1) + v(2:end)) .* dx)];
    e.work = e.work - [0, cumsum(modes.load(i) * (ag(1:end - 1) + ag(2:end)) / 2 .* dx)];
    e.v_end(i) = v(end);
  end
  e.residual = e.kinetic + e.strain + e.potential + e.damped - e.work;
end
