% Random structures with elements of all laws but those of users against a fine integration of the same equations in plain Octave: no wrong
% result without a word, and no error announced where the result is right. Short by default; QUARN_FULL=1 tries 300 set-ups, 100 with laws
% that look at velocities, 100 with force surfaces (and 1,000 linear structures), QUARN_RANGE=101:200 those set-ups alone: each is drawn
% from a seed of its own.
function tests = suite_toolbox_announced ()
  use_toolbox ();
  tests = localfunctions ();
end

function full = in_full ()
  full = ~isempty (getenv ('QUARN_FULL'));
end

% Numbers of the set-ups to try.
function which = chosen (some, all_of_them)
  which = 1:rounds (some);
  if in_full (), which = 1:all_of_them; end
  range = sscanf (getenv ('QUARN_RANGE'), '%d:%d');
  if numel (range) == 2, which = range(1):range(2); end
end

% What becomes of a set-up whose motion is known: error over the greatest displacement, whether anything was said, and the errors named
% before and after the run.
function [off, announced, errors] = outcome (sim, exact)
  res = qn.run (sim, 'progress', false, 'check', false);
  before = qn.check (sim);
  after = qn.check (sim, res);
  levels = {before.level, after.level};
  texts = {before.text, after.text};
  errors = texts(strcmp (levels, 'error'));
  announced = ~res.complete || any (~strcmp (levels, 'note'));
  off = Inf;
  if res.complete, off = max (max (abs (sim.model.shapes * res.q - exact))) / max (max (abs (exact))); end
end

% Set-ups of all laws, of those that look at velocities, and of surfaces; the plain integration takes all of them side by side.
function test_no_error_above_5_percent_goes_unannounced ()
  before = warning ('off', 'qn:diverged');
  back = onCleanup (@() warning (before));
  which = chosen (24, 300);
  kinds = repmat ({''}, size (which));
  for kind = {'rates', 'surfaces'}
    which = [which, chosen(24, 100)];
    kinds(end + 1:numel (which)) = kind;
  end
  for k = 1:numel (which)
    rand ('twister', which(k));
    randn ('twister', which(k));
    [sims{k}, c(k)] = random_set_up (kinds{k});
  end
  finest = 4;
  if in_full (), finest = 32; end
  [motion, sure] = settled_motion (c, finest);
  count = struct ('off', 0, 'silent', 0, 'false_alarms', 0);
  for k = find (sure)
    [off, announced, errors] = outcome (sims{k}, reshape (motion(:, k, :), 4, []));
    count.off = count.off + (off > 0.05);
    laws = strjoin (cellfun (@(l) qn.impl.law_text (l), c(k).laws, 'uniformoutput', false).', ' | ');
    if off > 0.05 && ~announced
      count.silent = count.silent + 1;
      fprintf ('set-up %d %s: off by %.3g, nothing said; %s\n', which(k), kinds{k}, off, laws);
    end
    if off <= 0.05 && ~isempty (errors)
      count.false_alarms = count.false_alarms + 1;
      fprintf ('set-up %d %s: off by %.3g, but: %s\n', which(k), kinds{k}, off, errors{1});
    end
  end
  fprintf ('        %d set-ups: %d off by more than 5 %%, %d of them without a word, %d false alarms, %d without a settled answer\n', ...
           numel (which), count.off, count.silent, count.false_alarms, sum (~sure));
  expect_equal ([count.silent, count.false_alarms], [0 0]);
  if sum (~sure) > max (2, 0.1 * numel (which)), error ('%d of %d have no settled answer', sum (~sure), numel (which)); end
end

% The random linear structures of all dampings, none of which is off by more than 5 % (suite_toolbox_coupled): no error is announced for
% them, and no growth.
function test_no_error_is_announced_for_linear_structures_that_come_out_right ()
  kinds = {'none', 'modal', 'rayleigh', 'dashpots', 'gyroscopic', 'bearings'};
  which = chosen (60, 1000);
  for k = which
    rand ('twister', k);
    randn ('twister', k);
    s = random_structure (kinds{1 + mod (k, numel (kinds))});
    found = qn.check (qn.simulation (s.model, 'step', s.step, 'steps', s.steps, 'u0', s.u0, 'v0', s.v0));
    bad = strcmp ({found.level}, 'error') | strcmp ({found.code}, 'growth') | strcmp ({found.code}, 'model_grows');
    if any (bad), error ('structure %d, %s: %s', k, kinds{1 + mod (k, numel (kinds))}, found(find (bad, 1)).text); end
  end
  fprintf ('        %d linear structures, no error announced\n', numel (which));
end

% Where it slips no reference of friction holds for it; it comes out as its law is defined, step by step, and is warned of.
function test_a_stick_slip_contact_that_slips_comes_out_as_defined_and_is_warned_of ()
  [kp, k, slip, ground, h] = deal (300, 2e4, 25.5, 1e3, 1e-3);
  model = qn.modal ([3e4 -1e4; -1e4 1e4], diag ([2 1]), 'damping', 0.01);
  row = qn.observe (model, 2);
  law = qn.law ('stickslip', 'contact', k, 'slip', slip, 'stiffness', kp, 'ground', ground);
  sim = qn.simulation (model, 'step', h, 'steps', 400, 'v0', [0; 1], 'elements', {law, row});
  slider = containers.Map ({'y', 'moves'}, {0, 0});
  q = model_predictor_corrector (model.stiffness, model.damping, zeros (2, 401), h, 1/4, 1/2, sim.start.u(1:2), sim.start.v(1:2), ...
                                 sim.start.a(1:2), @(q, v) row.' * literal (row * q, row * v));
  assert (slider('moves') > 20);
  said = evalc ('res = qn.run (sim, ''progress'', false);');
  if isempty (strfind (said, 'it slips, at 25.5 N')), error ('said: "%s"', said); end
  expect_equal (res.q, q, 1e-9);

  function f = literal (x, v)
    y = slider('y');
    trial = (y - x) * k + y * ground;
    if slip <= abs (fix (trial))
      y = ((x + v * h) * k - (2 * (trial > 0) - 1) * slip) / (k + ground);
      slider('y') = y;
      slider('moves') = slider('moves') + 1;
    end
    f = (x - y) * k + kp * x;
  end
end

% The reference of the campaign has formulas of its own, the same numbers.
function test_the_reference_of_laws_of_velocities_is_theirs ()
  rand ('twister', 5);
  [x, v] = deal (1e-4 * (rand (2, 20) - 0.5), 0.02 * (rand (2, 20) - 0.5));
  ring = qn.radial ('gap', 3e-5, 'stiffness', 1e6, 'exponent', 1.5, 'damping', 0.3, 'friction', 0.2, 'onset', 0.03, 'radius', 0.02, 'speed', 40);
  film = qn.journal ('viscosity', 0.02, 'length', 0.03, 'radius', 0.05, 'clearance', 6e-5, 'speed', 150, 'limit', 0.8);
  trials = {4, [3e-5 1e6 1.5 0.3 0.2 0.03 0.8], ring; 5, [0.02 * 0.05 * 0.03 ^ 3 / (4 * 3.6e-9), 6e-5, 150, 0.8 0 0 0], film
            1, [3 1.5 0 0 0 0 0], qn.damper('damping', 3, 'exponent', 1.5)
            2, [1e6 1.5 0.3 -2e-5 -1 0 0], qn.contact('stiffness', 1e6, 'damping', 0.3, 'gap', -2e-5, 'side', -1)};
  for j = 1:size (trials, 1)
    [kind, p, law] = trials{j, :};
    pairs = kind > 3;
    got = zeros (2, 20);
    for k = 1:20
      [got(:, k), unused] = forces_of_rates ([kind; kind * ~pairs], [p; p * ~pairs], x(:, k), v(:, k), [0; 0]);
    end
    if pairs, wanted = qn.force (law, x, v); else, wanted = [qn.force(law, x(1, :), v(1, :)); qn.force(law, x(2, :), v(2, :))]; end
    assert (any (wanted(:)));
    expect_equal (got, wanted, 1e-12 * max (abs (wanted(:))));
  end
end
