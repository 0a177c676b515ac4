% GOOD = RUN_CHECKS (...)  the checks of the demo; limits follow from the step, or say that they allow for rounding
%
% Input   MODES, H, PULSE, STOP, ROOF  the model as in run_demo.m, H the step
%         FREE, HIT                    runs without and with contacts, as INTEGRATE_MODES gives them
%         EXACT                        exact modal displacements of the first; E_FREE, E energies of both
function good = run_checks (modes, h, pulse, stop, roof, free, exact, hit, e_free, e)
  good = true;

  % Average acceleration lowers a frequency w by the fraction (w h)^2/12. In a free decay of damping z the phase error so
  % built up is at most (w h)^2/(12 z e) of the amplitude; the pulse adds its own (pi h/td)^2/12 and the start of the decay
  % (w h)^2/12.
  wh = modes.w * h;
  bound = max (abs (exact), [], 2) .* (wh .^ 2 / 12 * (1 / (modes.zeta * exp (1)) + 1) + (pi * h / pulse.duration) ^ 2 / 12);
  error_roof = max (abs (roof * free.q - roof * exact));
  peak = max (abs (roof * exact));
  good = check ('contact-free roof displacement against the exact modal solution, relative to its peak', error_roof / peak, ...
                abs (roof) * bound / peak, 'Newmark''s frequency error (w h)^2/12, worst moment of every mode, modes added') && good;
  good = check ('worst single mode against the exact solution, relative to its limit', ...
                max (max (abs (free.q - exact), [], 2) ./ bound), 1, 'the same, mode by mode') && good;

  input = max (e_free.work);
  good = check ('energy balance of the contact-free run, relative to the energy put in', max (abs (e_free.residual)) / input, ...
                1e-9, 'exact for this scheme: rounding alone is left') && good;

  % The stop's force is that of the predictor, h^2/4*a away from the step's end: as if the mass it meets were smaller by
  % k h^2/4. Its energy errs by that fraction, and no more than the whole energy passes through it.
  stiffness = max (diff (stop.f) ./ diff (stop.x));
  limit = h ^ 2 / 4 * stiffness * sum (roof .^ 2);
  good = check ('energy balance of the run with contacts, relative to the energy put in', max (abs (e.residual)) / max (e.work), ...
                limit, '(h w)^2/4, w the frequency of the stop against the 40 modes') && good;
  good = check ('velocities at the end, module against displacements, relative', norm (hit.v - e.v_end) / norm (hit.v), ...
                1e-7, 'the same numbers by two roads: rounding alone is left') && good;

  % Force and displacement are saved at the predictor and at the end of the step: they differ by h^2/4 times the acceleration.
  x = roof * hit.q;
  law = interp1 (stop.x, stop.f, min (max (x, stop.x(1)), stop.x(end)));
  accel = abs (diff (x, 2)) / h ^ 2;
  good = check ('saved stop force against the table at the saved displacement [N]', max (abs (hit.f(1, :) - law)), ...
                1.05 * h ^ 2 / 4 * max (accel) * stiffness, ...
                'h^2/4 times the largest acceleration times the stiffness, 5 % more as the acceleration comes from differences') && good;
  good = check ('pull of the stop on the frame [N]', abs (min ([0, hit.f(1, :)])), 0, 'a stop can only push') && good;
end
