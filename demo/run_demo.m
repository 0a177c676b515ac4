% The main job on realistic input: a steel frame on a shaken base, with a stop that it hits and a cubic brace.
%
% Run it with scripts/demo, which builds the module first, or from MATLAB or Octave with the module on the path. Environment:
% QUARN_DEMO_QUICK=1 takes fewer and longer steps, QUARN_DEMO_OUT names the folder for pictures and results (default: the
% current one).
%
% It assembles a finite-element model, reduces it to 40 modes, runs it without and with the stop and the brace - each run one
% call of the module - and checks itself: the run without contacts against the exact modal solution, the run with contacts
% against its own energy balance. It ends with an error when a check fails.
%
% The frame stays elastic: 2 % modal damping is all that takes energy out of it. The shock is a half sine of
% 8 m/s^2 over 50 ms. The stop stands 15 mm beside the roof: 2 mm of padding of 10 kN/mm, then 100 kN/mm.
here = fileparts (mfilename ('fullpath'));
addpath (here, fullfile (here, '..', 'toolbox'));
out_dir = getenv ('QUARN_DEMO_OUT');
if isempty (out_dir), out_dir = pwd (); end

n_step = 200000;
duration = 8;
if strcmp (getenv ('QUARN_DEMO_QUICK'), '1')
  n_step = 20000;
  duration = 2;
end
pulse = struct ('amplitude', 8, 'duration', 0.05);
stop = struct ('gap', 0.015, 'x', [0, 0.015, 0.017, 0.030], 'f', [0, 0, 20e3, 1.32e6]);
brace = struct ('k', 5e9, 'p', 3);

say ('assembling the frame');
frame = frame_model ();
say ('%d beam elements, %d nodes, %d degrees of freedom, %.1f t', frame.n_element, frame.n_node, size (frame.k, 1), frame.mass / 1e3);

say ('reducing it to its first 40 modes');
[phi, w] = first_modes (frame.k, frame.m, 40);
modes = struct ('w', w, 'zeta', 0.02, 'load', phi.' * (frame.m * frame.push));
roof = phi(frame.roof, :);
brace_at = phi(frame.floor, :);
say ('modes from %.2f to %.1f Hz, %.1f %% of the mass moves with them', w(1) / (2 * pi), w(end) / (2 * pi), ...
     100 * sum (modes.load .^ 2) / (frame.push.' * frame.m * frame.push));

h = duration / n_step;
t = (0:n_step) * h;
ag = pulse.amplitude * sin (pi * t / pulse.duration) .* (t < pulse.duration - h / 2);

say ('run without contacts: %d steps of %.0f microseconds in one call', n_step, h * 1e6);
free = integrate_modes (modes, t, ag, {});
say ('done in %.2f s', free.time);

say ('run with the stop (table) and the brace (power law): %d steps in one call', n_step);
elements = {nonlinear_element(roof, 0, 'Table', stop.x, stop.f), nonlinear_element(brace_at, 1, 'Power', brace.k, brace.p)};
hit = integrate_modes (modes, t, ag, elements);
say ('done in %.2f s', hit.time);

say ('checking');
exact = half_sine_exact (w, modes.zeta, -modes.load, pulse.amplitude, pulse.duration, t);
x = roof * hit.q;
y = brace_at * hit.q;
x_free = roof * free.q;
e_free = energy_balance (modes, t, ag, free.q, zeros (1, n_step + 1));
e = energy_balance (modes, t, ag, hit.q, table_energy (stop.x, stop.f, x) + brace.k * y .^ 4 / 4);
good = run_checks (modes, h, pulse, stop, roof, free, exact, hit, e_free, e);

contacts = contact_events (t, hit.f(1, :));
fprintf ('\nContacts with the stop: %d\n', numel (contacts));
if isempty (contacts), error ('demo: the frame never touched its stop'); end
for c = contacts
  fprintf ('  from %6.4f s, %5.1f ms long, peak force %5.1f kN\n', c.start, 1e3 * c.duration, c.peak / 1e3);
end
fprintf ('Largest roof displacement %.2f mm to the stop''s side, %.2f mm away; without stop and brace %.2f and %.2f mm\n', ...
         1e3 * [max(x), -min(x), max(x_free), -min(x_free)]);
fprintf ('Peak force: stop %.1f kN, brace %.1f kN\n', max (hit.f(1, :)) / 1e3, max (abs (hit.f(2, :))) / 1e3);
fprintf ('Time per step (40 modes, everything saved): %.2f microseconds linear, %.2f with stop and brace\n\n', ...
         free.time / n_step * 1e6, hit.time / n_step * 1e6);

say ('drawing');
plot_response (fullfile (out_dir, 'response.png'), t, x_free, x, e, stop, contacts);
plot_contact (fullfile (out_dir, 'contact.png'), t, x, hit.f(1, :), y, hit.f(2, :), stop, brace, contacts);
say ('writing results');
write_results (out_dir, t, ag, x, y, hit.f, x_free, w, contacts);
say ('pictures and results are in %s', out_dir);
if ~good, error ('demo: a check failed'); end
