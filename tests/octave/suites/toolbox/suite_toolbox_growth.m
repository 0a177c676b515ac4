% Motion that gets energy from the time steps alone is said long before it overflows, and never where loads or springs give it.
function tests = suite_toolbox_growth ()
  use_toolbox ('quiet');
  tests = localfunctions ();
end

function res = strict_run (sim, varargin)
  warning ('error', 'qn:growth');
  back = onCleanup (@() warning ('on', 'qn:growth'));
  res = qn.run (sim, 'progress', false, varargin{:});
end

% A spring a little too stiff for the step: the motion grows by 6 % a step.
function sim = slowly_unstable (varargin)
  model = qn.modal (100, 1);
  sim = qn.simulation (model, 'step', 0.1, 'steps', 20000, 'elements', {qn.law('power', 'stiffness', 401, 'exponent', 1), 1}, varargin{:});
end

function test_a_slow_instability_is_said_long_before_it_overflows ()
  model = qn.modal (100, 1);
  loads = {{'v0', 1}, {'load', {qn.load_at(model, 1), @(t) sin(3 * t)}}, {'v0', 1, 'load', {qn.load_at(model, 1), @(t) 10 + 0 * t}}};
  warning ('off', 'qn:diverged');
  back = onCleanup (@() warning ('on', 'qn:diverged'));
  for k = 1:numel (loads)
    sim = slowly_unstable (loads{k}{:});
    said = '';
    try
      strict_run (sim, 'piece', 50);
    catch err
      said = err.message;
    end
    at = sscanf (said, 'at %g s the motion has');
    if isempty (at), error ('it said "%s"', said); end
    text = evalc ('res = qn.run (sim, ''progress'', false, ''piece'', 50);');
    expect_equal (res.diverged, true);
    if ~(at < res.time_end / 4), error ('said after %g s, the end is at %g s', at, res.time_end); end
  end
end

function test_the_warning_can_be_switched_off ()
  before = warning ('off', 'qn:growth');
  also = warning ('off', 'qn:diverged');
  back = onCleanup (@() cellfun (@warning, {before, also}));
  lastwarn ('', '');
  qn.run (slowly_unstable ('v0', 1), 'progress', false, 'piece', 50);
  [~, id] = lastwarn ();
  expect_equal (strcmp (id, 'qn:growth'), false);
end

function law = random_passive (ks, h)
  switch ceil (6 * rand ())
    case 1, law = qn.gap ('gap', 1e-3 * randn (), 'stiffness', ks);
    case 2, law = qn.slider ('slip', ks * 1e-3 * rand (), 'stiffness', ks);
    case 3, law = qn.maxwell ('springs', ks, 'dampers', ks * h * 10);
    case 4, law = qn.stop ('gap', 1e-3 * rand (), 'stiffness', ks, 'inner', ks / 10);
    case 5, law = qn.bilinear ('first', ks, 'second', ks * rand (), 'at', 1e-3);
    case 6, law = qn.law ('table', 'displacement', [-1 0 1e-4 2e-4 1], 'force', ks * [-1 0 1e-4 -1e-4 1]);
  end
end

% Chains with loads at resonance and beside it, constant loads, free bodies, preloaded stops and sliders, with all dampings.
function test_no_passive_set_up_is_accused ()
  rand ('twister', 11);
  randn ('twister', 11);
  count = 20;
  if ~isempty (getenv ('QUARN_FULL')), count = 1000; end
  for k = 1:count
    n = 1 + floor (5 * rand ());
    a = randn (n);
    b = randn (n);
    stiffness = (rand () < 0.8) * 1e3 * 10 ^ (3 * rand ()) * (b * b' + 0.1 * eye (n));
    model = qn.modal (stiffness, a * a' + eye (n), 'damping', (rand () < 0.5) * 0.05 * rand (), 'C', (rand () < 0.3) * 10 * (b * b'));
    w = max (model.w);
    h = 2 * pi / max (w, 1) / 20 * (0.2 + rand ());
    elements = cell (0, 2);
    for j = 1:floor (3 * rand ())
      row = qn.observe (model, ceil (n * rand ()));
      elements(end + 1, :) = {random_passive((0.3 / h) ^ 2 / (row * row.') * rand (), h), row};
    end
    loads = cell (0, 2);
    for j = 1:floor (3 * rand ())
      rates = [0, w * rand(), model.w.'];
      wj = rates(ceil (numel (rates) * rand ()));
      loads(end + 1, :) = {model.shapes.' * randn(n, 1) * 10 ^ (2 * rand ()), @(t) cos(wj * t)};
    end
    schemes = {'average', 'linear', {'damped', 0.8}};
    sim = qn.simulation (model, 'step', h, 'steps', 1000, 'v0', 0.1 * randn (n, 1), 'elements', elements, 'load', loads, ...
                         'scheme', schemes{ceil (3 * rand ())});
    expect_equal (isfinite (qn.impl.energy_limit (sim, sim.start)), true);
    first = strict_run (sim, 'piece', 100);
    strict_run (qn.simulation (model, 'step', h, 'steps', 500, 'start', first, 'elements', elements, 'load', loads), 'piece', 100);
  end
end

function test_nothing_is_said_where_forces_may_feed_the_motion ()
  model = qn.modal (100 * eye (2), eye (2));
  limit = @(varargin) qn.impl.energy_limit (qn.simulation (model, 'step', 1e-3, 'steps', 1, varargin{:}), ...
                                            getfield (qn.simulation (model, 'step', 1e-3, 'steps', 1, varargin{:}), 'start'));
  rows = {qn.observe(model, 1), qn.observe(model, 2)};
  expect_equal (limit ('v0', [3; 4]), 5, 1e-12);
  expect_equal (limit ('u0', [3; 4]), 50, 1e-12);
  expect_equal (limit ('elements', {qn.cubic('stiffness', 1), rows{1}, rows{2}}), Inf);
  expect_equal (limit ('elements', {qn.law('table', 'displacement', 0, 'force', 3), rows{1}}), Inf);
  expect_equal (limit ('elements', {qn.law('power', 'stiffness', 1, 'exponent', 2), rows{1}}), Inf);
  expect_equal (limit ('elements', {qn.law('power', 'stiffness', -1, 'exponent', 1), rows{1}}), Inf);
  % A preloaded spring of 100 N/m, 0.1 m short of its rest: half a joule.
  expect_equal (limit ('elements', {qn.law('table', 'displacement', [-1 1], 'force', [-90 110]), rows{1}}), 1, 1e-12);
  circulating = qn.modal (100 * eye (2), eye (2), 'K', [0 5; -5 0]);
  sim = qn.simulation (circulating, 'step', 1e-3, 'steps', 1, 'v0', [1; 0]);
  expect_equal (qn.impl.energy_limit (sim, sim.start), Inf);
  whirling = qn.modal (100 * eye (2), eye (2), 'G', [0 5; -5 0], 'speed', 1);
  sim = qn.simulation (whirling, 'step', 1e-3, 'steps', 1, 'v0', [3; 4]);
  expect_equal (qn.impl.energy_limit (sim, sim.start), 5, 1e-12);
end

% docs/theory.md: kn h^2 gamma/2 + cn h/2 = 1 + (gamma - 1/2) h c + (beta - gamma/2) h^2 k, for a damper and a spring at one place.
function test_a_damper_as_an_element_grows_from_its_limit_on ()
  was = warning ('off', 'qn:growth');
  back = onCleanup (@() warning (was));
  h = 1e-2;
  for c = {{[0.25 0.5], 0, 100}, {[0.25 0.5], 5e3, 400}, {[0.3025 0.6], 5e3, 400}}
    [scheme, spring, k] = deal (c{1}{:});
    model = qn.modal (k, 1, 'damping', 0.05);
    own = 2 * 0.05 * sqrt (k);
    limit = 2 / h * (1 + (scheme(2) - 0.5) * h * own + (scheme(1) - scheme(2) / 2) * h ^ 2 * k - spring * h ^ 2 * scheme(2) / 2);
    for share = [0.97 1.03]
      elements = {qn.damper('damping', share * limit), 1; qn.law('power', 'stiffness', spring, 'exponent', 1), 1};
      sim = qn.simulation (model, 'step', h, 'steps', 10000, 'u0', 1, 'scheme', scheme, 'elements', elements);
      res = qn.run (sim, 'progress', false, 'check', false, 'stop', @(r) max (abs (r.q)) > 1e3);
      expect_equal (max (abs (res.q)) > 1e3, share > 1);
    end
  end
end
