% A = JUDGE_STEPS (SIM, X, RUNS, TOLERANCE, LONGER)  advice of qn.advise from motions with h, h/2 and, if there is a third one, h/4
%
% X are the motions at the same times, [] for one that grows, RUNS their results. LONGER (K) is the motion with the step K h.
function a = judge_steps (sim, x, runs, tolerance, longer)
  h = sim.step;
  a = struct ('step', h, 'error', NaN, 'error_half', NaN, 'order', NaN, 'advised', NaN, 'limit', NaN, 'sure', false, 'text', '');
  grows = cellfun (@isempty, x);
  if any (grows)
    a = qn.impl.beyond_limit (a, sim, grows, runs);
    return
  end
  top = max (abs (x{end}(:)));
  d = zeros (1, numel (x) - 1);
  for k = 1:numel (d), d(k) = max (max (abs (x{k} - x{k + 1}))) / top; end
  if max (d) < 1e-9
    a = same (a, h, max (d), tolerance);
    if numel (d) > 1 && tolerance > 1e-8, a = proposed (a, sim, x, top, tolerance, 4 * h, 0, longer); end
    return
  end
  % Error a h + b h^2: the first order's part and the second's, for h.
  if numel (d) == 1
    first = 2 * d;
    second = 0;
    a.error = first;
    a.error_half = first / 2;
    how = 'order not measured, the first taken';
  else
    a.order = log2 (d(1) / d(2));
    if ~(a.order >= 0.5 && a.order <= 3) || d(2) > 0.25
      a = scattered (a, h, d, tolerance);
      return
    end
    [first, second] = parts_of (d, sim);
    a.error = first + second;
    a.error_half = first / 2 + second / 4;
    if a.order < 1
      first = d(1) * 2 ^ a.order / (2 ^ a.order - 1);
      a.error = first;
      a.error_half = first / 2 ^ a.order;
    end
    how = sprintf ('order %.2f', a.order);
  end
  a.sure = numel (d) > 1;
  power = min (1, max (a.order, 0.5));
  if second > 0
    factor = 2 * tolerance / (first + sqrt (first ^ 2 + 4 * second * tolerance));
  else
    factor = (tolerance / first) ^ (1 / power);
  end
  a.text = sprintf ('step %.3g s: error %.2g of the greatest displacement; step %.3g s: %.2g (%s)', h, a.error, h / 2, a.error_half, how);
  a = proposed (a, sim, x, top, tolerance, h * factor, a.error_half / 2, longer);
end

% Error with h of the first and of the second order, from differences d1 = |a h/2 + 3/4 b h^2|, d2 = |a h/4 + 3/16 b h^2|. Where laws
% with memory or of the velocity make an error of first order it is one of damping, beside one of phase: their squares add. Else what is missing to
% the second order is mostly higher ones, and the sum is near enough.
function [first, second] = parts_of (d, sim)
  first_order = false;
  for e = sim.elements
    t = qn.impl.traits (e.law, size (e.observe, 1));
    first_order = first_order || t.memory || t.rates;
  end
  if first_order
    first = sqrt (max (0, 4 / 3 * (16 * d(2) ^ 2 - d(1) ^ 2)));
    second = 4 / 3 * sqrt (max (0, d(1) ^ 2 - first ^ 2 / 4));
  else
    first = max (0, 2 * (4 * d(2) - d(1)));
    second = max (0, 4 / 3 * (d(1) - first / 2));
  end
end

% The step that the error allows, within what these runs can vouch for. REST is about the error of the run with the shortest step.
function a = proposed (a, sim, x, top, tolerance, step, rest, longer)
  h = sim.step;
  k = min (64, floor (step / h));
  a.advised = step;
  note = sprintf ('. For %.2g take a step of %.2g s', tolerance, step);
  if step < h / 64
    a.advised = h / 64;
    note = sprintf ('. For %.2g the step must be shorter than %.2g s; ask again from there', tolerance, a.advised);
  elseif k >= 2
    while k >= 2 && ~kept (a, sim, x{end}, top, tolerance - rest, k, longer), k = floor (k / 2); end
    a.advised = k * h;
    note = sprintf ('. For %.2g take a step of %.2g s', tolerance, a.advised);
    if k == 64, note = [note ', the longest that was tried']; end
    if k < 2, note = sprintf ('. Longer steps miss %.2g or are beyond what qn.check allows: stay with %.2g s', tolerance, h); end
  elseif step > h && qn.impl.refused_step (sim, step, [])
    a.advised = h;
    note = sprintf ('. Longer steps are beyond what qn.check allows: stay with %.2g s', h);
  end
  a.text = [a.text note];
end

% Whether a run with K times the step keeps the tolerance, at the times that both know.
function yes = kept (a, sim, x, top, tolerance, k, longer)
  yes = false;
  if size (x, 2) <= k || qn.impl.refused_step (sim, k * a.step, []), return, end
  y = longer (k);
  if isempty (y), return, end
  z = x(:, 1:k:end);
  n = min (size (y, 2), size (z, 2));
  yes = max (max (abs (y(:, 1:n) - z(:, 1:n)))) <= tolerance * top;
end

% Differences that do not fall as errors of a step do: contacts that close at other places within a step, chaos, too long a step.
function a = scattered (a, h, d, tolerance)
  a.order = NaN;
  a.text = sprintf (['step %.3g s: the runs with h and h/2 differ by %.2g of the greatest displacement, those with h/2 and h/4 by ' ...
                     '%.2g, which is not how the error of a step falls: no order and no error can be told'], h, d);
  if 4 * max (d) <= tolerance
    a.advised = h;
    a.text = sprintf ('%s. Both are far below %.2g: stay with %.2g s', a.text, tolerance, h);
  else
    a.advised = h / 8;
    a.text = sprintf ('%s, nor a step for %.2g. Ask again from %.2g s; chaotic motion can only be compared by statistics', a.text, ...
                      tolerance, a.advised);
  end
end

function a = same (a, h, d, tolerance)
  a.error = d;
  a.error_half = d;
  a.advised = h;
  a.sure = true;
  a.text = sprintf (['step %.3g s: the runs with shorter steps agree with it to %.1g of the greatest displacement, which is rounding; ' ...
                     'an order cannot be measured'], h, d);
  if tolerance < d, a.text = sprintf ('%s, and %.2g not be reached', a.text, tolerance); end
end
