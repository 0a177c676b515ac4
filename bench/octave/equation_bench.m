% lsode on the problems of bench/equations_models.cpp, with the error against their reference.
function notes = equation_bench (quick, reference)
  notes = [];
  % The beam takes lsode minutes with smaller tolerances, and its own choice of method ends far off.
  runs = {'Duffing oscillator', 'stiff', 2:2:8
          'Dahl chain', 'stiff', 2:2:8
          'beam with gap', 'stiff', 2
          'beam with gap', 'non-stiff', 2};
  for k = 1:size (runs, 1)
    wanted = reference_of (reference, runs{k, 1});
    if isempty (wanted), continue; end
    digits = runs{k, 3};
    if quick, digits = digits(1); end
    notes = [notes, solve(runs{k, 1}, runs{k, 2}, digits, wanted)];
  end
end

function notes = solve (name, method, digits, wanted)
  notes = [];
  program = 'Octave lsode';
  if strcmp (method, 'non-stiff'), program = 'Octave lsode, non-stiff'; end
  [rate, y0, finish] = problem (name);
  lsode_options ('integration method', method);
  lsode_options ('step limit', 10000000);
  for d = digits
    lsode_options ('relative tolerance', 10 ^ -d);
    lsode_options ('absolute tolerance', 10 ^ (-d - 2));
    start = cputime;
    y = lsode (rate, y0, [0 finish]);
    took = cputime - start;
    x = y(end, 1:numel (wanted)).';
    n = note ('equations', name, d, program, took, 1, 0, 0);
    n.error = off_by (x, wanted);
    notes = [notes, n];
  end
end

function x = reference_of (records, name)
  x = [];
  for k = 1:numel (records)
    r = records{k};
    if strcmp (r.group, 'reference') && strcmp (r.variant, name)
      while isfield (r, sprintf ('x%d', numel (x))), x(end + 1, 1) = r.(sprintf ('x%d', numel (x))); end
    end
  end
end

function [rate, y0, finish] = problem (name)
  if strcmp (name, 'Duffing oscillator')
    rate = @(y, t) [y(2); 0.3 * cos(1.2 * t) - 0.04 * y(2) - y(1) - 0.5 * y(1) ^ 3];
    y0 = zeros (2, 1);
    finish = 100;
    return
  end
  if strcmp (name, 'beam with gap')
    i = (1:100)';
    shape = sin (0.3 * pi * i);
    middle = sin (0.5 * pi * i);
    rate = @(y, t) beam_rate (y, t, i .^ 2, shape, middle);
    y0 = zeros (200, 1);
    finish = 30;
    return
  end
  n = 20;
  i = (1:n)';
  w = 20 * sin (pi * i / (2 * (n + 1)));
  phi = sqrt (2 / (n + 1)) * sin (pi * i * i' / (n + 1));
  load = sum (phi, 2);
  rate = @(y, t) chain_rate (y, t, n, w, phi, load);
  y0 = zeros (3 * n, 1);
  finish = 20;
end

function dy = chain_rate (y, t, n, w, phi, load)
  v = y(n + 1:2 * n);
  f = y(2 * n + 1:end);
  speed = phi * v;
  direction = 2 * (speed > 0) - 1;
  dy = [v; load * sin(1.5 * t) - 0.02 * w .* v - w .^ 2 .* y(1:n) - phi * f; 50 * speed .* (1 - direction .* f / 0.3)];
end

function dy = beam_rate (y, t, w, shape, middle)
  u = y(1:100);
  v = y(101:200);
  x = middle' * u;
  f = 50 * (max (x - 0.2, 0) + min (x + 0.2, 0));
  dy = [v; shape * (0.3 * sin (0.9 * t)) - 0.02 * w .* v - w .^ 2 .* u - middle * f];
end
