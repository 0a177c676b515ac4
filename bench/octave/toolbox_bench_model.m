% [MODEL, SET_UP, PLACE] = TOOLBOX_BENCH_MODEL ('strip')  the strip of the tutorial, with its stop; SET_UP (STEPS) makes a simulation of so many steps
% [MODEL, SET_UP, PLACE] = TOOLBOX_BENCH_MODEL ('chain')  60 modes of a chain of 200 masses with five elements of different kinds
function [model, set_up, place] = toolbox_bench_model (which)
  if strcmp (which, 'strip')
    [model, place] = strip ();
    blow = {qn.load_at(model, place), @(t) 200 * sin(pi * t / 0.005) .* (t < 0.005)};
    elements = {qn.gap('gap', 0.002, 'stiffness', 1e6), qn.observe(model, place)};
    set_up = @(steps) qn.simulation (model, 'step', 1e-5, 'steps', steps, 'load', blow, 'elements', elements);
    return
  end
  n = 200;
  K = 1e6 * spdiags (ones (n, 1) * [-1 2 -1], -1:1, n, n);
  model = qn.modal (K, speye (n), 'modes', 60, 'damping', 0.01);
  place = 100;
  drive = {qn.load_at(model, place), @(t) 50 * sin(1.3 * model.w(1) * t)};
  at = @(dof) qn.observe (model, dof);
  elements = {qn.cubic('stiffness', 1e8), at(20); qn.gap('gap', 1e-3, 'stiffness', 1e5), at(50); ...
              qn.slider('slip', 5, 'stiffness', 1e5), at(80); qn.damper('damping', 10, 'exponent', 1.5), at(120); ...
              qn.boucwen('stiffness', 1e5, 'yield', 1e-4), at(160)};
  step = 0.3 / max (model.w);
  set_up = @(steps) qn.simulation (model, 'step', step, 'steps', steps, 'load', drive, 'elements', elements);
end

function [model, tip] = strip ()
  n = 12;
  a = 0.6 / n;
  ei = 210e9 * 0.04 * 0.01 ^ 3 / 12;
  mu = 7850 * 0.04 * 0.01;
  ke = ei / a ^ 3 * [12 6*a -12 6*a; 6*a 4*a^2 -6*a 2*a^2; -12 -6*a 12 -6*a; 6*a 2*a^2 -6*a 4*a^2];
  me = mu * a / 420 * [156 22*a 54 -13*a; 22*a 4*a^2 13*a -3*a^2; 54 13*a 156 -22*a; -13*a -3*a^2 -22*a 4*a^2];
  [K, M] = deal (zeros (2 * n + 2));
  for j = 1:n
    at = 2 * j - 1:2 * j + 2;
    K(at, at) = K(at, at) + ke;
    M(at, at) = M(at, at) + me;
  end
  tip = 2 * n - 1;
  model = qn.modal (K(3:end, 3:end), M(3:end, 3:end), 'modes', 8, 'damping', 0.01);
end
