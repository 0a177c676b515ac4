% Random structures with elements against a fine integration of the same equations in plain Octave: no wrong result without a word, and
% no error announced where the result is right. Short by default; QUARN_FULL=1 tries 300.
function tests = suite_toolbox_announced ()
  use_toolbox ();
  tests = localfunctions ();
end

function test_no_error_above_5_percent_goes_unannounced_with_elements ()
  trials = rounds (12);
  if ~isempty (getenv ('QUARN_FULL')), trials = 300; end
  rand ('state', 2026);
  randn ('state', 2026);
  before = warning ('off', 'qn:diverged');
  back = onCleanup (@() warning (before));
  count = struct ('off', 0, 'silent', 0, 'false_alarms', 0, 'undecided', 0);
  sims = cell (1, trials);
  for k = 1:trials, [sims{k}, c(k)] = random_set_up (); end
  [motion, sure] = settled (c);
  for k = 1:trials
    sim = sims{k};
    if ~sure(k)
      count.undecided = count.undecided + 1;
      continue
    end
    res = qn.run (sim, 'progress', false, 'check', false);
    found = qn.check (sim, res);
    levels = {found.level};
    announced = ~res.complete || any (strcmp (levels, 'error')) || any (strcmp (levels, 'warning'));
    exact = reshape (motion(:, k, :), 4, []);
    x = sim.model.shapes * res.q;
    off = Inf;
    if res.complete, off = max (max (abs (x - exact))) / max (max (abs (exact))); end
    count.off = count.off + (off > 0.05);
    if off > 0.05 && ~announced
      count.silent = count.silent + 1;
      fprintf ('set-up %d: off by %.3g, nothing said; %s\n', k, off, strjoin (cellfun (@(l) qn.describe (l), c(k).laws, ...
               'uniformoutput', false).', ' | '));
    end
    if off <= 0.05 && any (strcmp (levels, 'error'))
      count.false_alarms = count.false_alarms + 1;
      fprintf ('set-up %d: off by %.3g, but: %s\n', k, off, found(find (strcmp (levels, 'error'), 1)).text);
    end
  end
  fprintf ('        %d set-ups: %d off by more than 5 %%, %d of them without a word, %d false alarms, %d without a settled answer\n', trials, ...
           count.off, count.silent, count.false_alarms, count.undecided);
  expect_equal ([count.silent, count.false_alarms], [0 0]);
  if count.undecided > 0.25 * trials, error ('%d of %d have no settled answer', count.undecided, trials); end
end

% The random linear structures of all dampings, none of which is off by more than 5 % (suite_toolbox_coupled): no error is announced for
% them, and no growth.
function test_no_error_is_announced_for_linear_structures_that_come_out_right ()
  rand ('twister', 12);
  randn ('twister', 12);
  kinds = {'none', 'modal', 'rayleigh', 'dashpots', 'gyroscopic', 'bearings'};
  trials = rounds (60);
  if ~isempty (getenv ('QUARN_FULL')), trials = 1000; end
  for k = 1:trials
    s = random_structure (kinds{1 + mod (k, numel (kinds))});
    found = qn.check (qn.simulation (s.model, 'step', s.step, 'steps', s.steps, 'u0', s.u0, 'v0', s.v0));
    bad = strcmp ({found.level}, 'error') | strcmp ({found.code}, 'growth') | strcmp ({found.code}, 'model_grows');
    if any (bad), error ('structure %d, %s: %s', k, kinds{1 + mod (k, numel (kinds))}, found(find (bad, 1)).text); end
  end
end

% The motion by steps of which a half changes less than 1 %; chaotic motion and impacts that no step settles are no reference.
function [x, sure] = settled (c)
  sure = false (1, numel (c));
  x = zeros (4, numel (c), c(1).steps + 1);
  tries = 2;
  if ~isempty (getenv ('QUARN_FULL')), tries = [2 8]; end
  for parts = tries
    left = find (~sure);
    if isempty (left), return, end
    coarse = fine_motion (c(left), parts);
    fine = fine_motion (c(left), 2 * parts);
    apart = max (max (abs (coarse - fine), [], 3), [], 1) ./ max (max (abs (fine), [], 3), [], 1);
    sure(left) = apart < 0.01;
    x(:, left, :) = fine;
  end
end
