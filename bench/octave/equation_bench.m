% lsode on two of the problems of bench/equations_models.cpp, with the error against their reference.
function notes = equation_bench (quick, reference)
  notes = [];
  digits = 2:2:8;
  if quick, digits = 2; end
  for name = {'Duffing oscillator', 'Dahl chain'}
    wanted = reference_of (reference, name{1});
    if isempty (wanted), continue; end
    [rate, y0, finish] = problem (name{1});
    for d = digits
      lsode_options ('relative tolerance', 10 ^ -d);
      lsode_options ('absolute tolerance', 10 ^ (-d - 2));
      lsode_options ('step limit', 10000000);
      start = cputime;
      y = lsode (rate, y0, [0 finish]);
      took = cputime - start;
      x = y(end, 1:numel (wanted)).';
      n = note ('equations', name{1}, d, 'Octave lsode', took, 1, 0, 0);
      n.error = off_by (x, wanted);
      notes = [notes, n];
    end
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
