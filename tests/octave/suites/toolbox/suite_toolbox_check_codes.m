% Every finding of qn.check: a set-up that raises it and a like one that does not; the list in the documents; warnings of qn.run.
function tests = suite_toolbox_check_codes ()
  use_toolbox ();
  tests = localfunctions ();
end

function sim = good (varargin)
  o = struct ('step', 1e-4, 'until', 0.2, 'v0', 1, 'scheme', 'average', 'load', {{}}, 'elements', {{}});
  for k = 1:2:numel (varargin), o.(varargin{k}) = varargin{k + 1}; end
  args = [fieldnames(o), struct2cell(o)].';
  sim = qn.simulation (qn.modal (4e4, 1), args{:});
end

function sim = with (law, varargin)
  sim = good ('elements', {law, 1}, varargin{:});
end

function s = changed (s, field, value)
  s.(field) = value;
end

function s = in_model (s, field, value)
  s.model.(field) = value;
end

function s = in_start (s, field, value)
  s.start.(field) = value;
end

function s = in_element (s, field, value)
  s.elements.(field) = value;
end

function sim = pushed (signal, varargin)
  sim = good ('load', {1, signal}, varargin{:});
end

% A structure of five equal masses in a row; two modes.
function model = chain (varargin)
  k = 1e6 * (diag ([2 2 2 2 1]) - diag (ones (4, 1), 1) - diag (ones (4, 1), -1));
  model = qn.modal (k, eye (5), 'damping', 0.02, varargin{:});
end

function sim = on_chain (stiffness, varargin)
  model = chain ('modes', 2, varargin{:});
  sim = qn.simulation (model, 'step', 1e-5, 'until', 0.1, 'load', {qn.load_at(model, 5), @(t) 1e3 * sin(100 * t)}, ...
                       'elements', {qn.gap('gap', 1e-4, 'stiffness', stiffness), qn.observe(model, 1)});
end

% Two masses that do not meet; the fast one is still.
function sim = aside (step)
  sim = qn.simulation (qn.modal (diag ([1 4e4]), eye (2)), 'step', step, 'until', 10, 'v0', [1; 0]);
end

% Two equal modes that damping or stiffness matrices couple.
function sim = coupled (damping, stiffness, scheme, step)
  sim = qn.simulation (qn.modal (1e4 * eye (2), eye (2)), 'step', step, 'until', 2, 'q0', [1e-3; 0], 'scheme', scheme);
  sim.model.damping = damping;
  sim.model.stiffness = stiffness;
end

function sim = running_up ()
  model = qn.modal (4e4 * eye (2), eye (2), 'G', [0 1; -1 0], 'speed', 0);
  sim = qn.simulation (model, 'step', 1e-4, 'until', 0.2, 'v0', [1; 0], 'speed', [0 1; 0 100]);
end

function c = cases ()
  persistent made
  if isempty (made), made = all_cases (); end
  c = made;
end

% Rows {code, level, set-up that raises it, one that does not}; where a result is looked at a set-up is followed by true.
function c = all_cases ()
  skew = [0 1; -1 0];
  sawtooth = qn.law ('table', 'displacement', (-5:5) * 1e-3, 'force', [-5 -4 -4.5 -3 -3.5 0 3.5 3 4.5 4 5]);
  straight = qn.law ('table', 'displacement', (-5:5) * 1e-3, 'force', -5:5);
  stiff = @(k) qn.law ('power', 'stiffness', k, 'exponent', 1);
  stop = @(gap) qn.stop ('gap', gap, 'stiffness', 1e4);
  pairs = @(k) good ('elements', {stiff(k), 1; stiff(k), 1}, 'step', 1e-3);
  zener = @(t) qn.maxwell ('springs', 100, 'times', t);
  sine = @(t) sin (60 * t);
  long_record = [linspace(0, 200, 4001); sin(linspace (0, 200, 4001))];
  short_record = [linspace(0, 1e-3, 201); sin(linspace (0, 3, 201))];
  fine_record = [linspace(0, 0.2, 4001); sin(2e4 * linspace (0, 0.2, 4001))];
  c = {'times', 'error', {changed(good (), 'time', single (1:4))}, {good()}
       'saved', 'error', {changed(good (), 'saved', [3 2])}, {good()}
       'loads', 'error', {changed(pushed (sine), 'loads', 1:3)}, {pushed(sine)}
       'load_values', 'error', {changed(pushed (sine), 'loads', NaN (1, 2001))}, {pushed(sine)}
       'model', 'error', {in_model(good (), 'stiffness', [1; 2])}, {good()}
       'stiffness', 'error', {in_model(good (), 'stiffness', NaN)}, {good()}
       'damping', 'error', {in_model(good (), 'damping', NaN)}, {good()}
       'initial', 'error', {in_start(good (), 'v', NaN)}, {good()}
       'rows', 'error', {in_element(with (stop (1e-3)), 'observe', [1 2])}, {with(stop (1e-3))}
       'row_values', 'error', {in_element(with (stop (1e-3)), 'observe', Inf)}, {with(stop (1e-3))}
       'speed', 'error', {changed(running_up (), 'speed', [0 0.1; 0 1])}, {running_up()}
       'table_order', 'error', {in_element(with (stop (1e-3)), 'law', turned (stop (1e-3)))}, {with(stop (1e-3))}
       'step_unstable', 'error', {good('step', 0.018, 'scheme', 'linear')}, {good('step', 0.017, 'scheme', 'linear')}
       'step_coarse', 'warning', {good('step', 4e-3)}, {good('step', 3e-3)}
       'step_coarse', 'note', {aside(4e-3)}, {aside(3e-3)}
       'phase', 'warning', {good('until', 2, 'step', 2e-3)}, {good('until', 2, 'step', 1e-4)}
       'phase', 'warning', {with(stiff (3e5), 'until', 2, 'step', 3e-4), true}, {with(stiff (3e5), 'until', 0.2, 'step', 1e-4), true}
       'growth', 'error', {coupled(zeros (2), [4e4 1e4; 1e4 4e4], 'linear', 0.02)}, ...
                          {coupled(zeros (2), [4e4 1e4; 1e4 4e4], 'linear', 0.01)}
       'model_grows', 'warning', {coupled(0.1 * eye (2), 1e4 * eye (2) + 3e3 * skew, 'average', 1e-3)}, ...
                                 {coupled(40 * eye (2), 1e4 * eye (2) + 3e3 * skew, 'average', 1e-3)}
       'run_short', 'note', {good('until', 0.01)}, {good()}
       'at_rest', 'warning', {good('v0', 0)}, {good()}
       'initial_lost', 'warning', {given(chain ('modes', 2), [0; 0; 1; 0; 0])}, {given(chain ('modes', 2), (1:5).' / 5)}
       'load_zero', 'warning', {pushed(@(t) 5 * (t > 1e-5 & t < 3e-5))}, {pushed(@(t) 5 * (t > 1e-3))}
       'load_shape', 'note', {push_of(chain ('modes', 2), [1; 0])}, {push_of(chain ('modes', 2), [0.5; 0])}
       'load_ends', 'note', {pushed([0 0.1; 0 1])}, {pushed([0 0.2; 0 1])}
       'load_coarse', 'note', {pushed(@(t) sin (2e4 * t))}, {pushed(sine)}
       'record_unused', 'warning', {pushed(long_record)}, {pushed(long_record(:, 1:40))}
       'record_short', 'warning', {pushed(short_record)}, {pushed(long_record(:, 1:40))}
       'record_skipped', 'warning', {pushed(fine_record)}, {pushed(fine_record, 'step', 1e-5)}
       'damping_high', 'note', {in_model(good (), 'damping', 300)}, {in_model(good (), 'damping', 30)}
       'frequencies', 'warning', {qn.simulation(qn.modal (1e15, 1), 'step', 1e-9, 'steps', 9, 'v0', 1)}, {good()}
       'element_zero', 'warning', {good('elements', {stop(1e-3), sparse(0)})}, {with(stop (1e-3))}
       'element_unstable', 'error', {with(stiff (1e7), 'step', 1e-3)}, {with(stiff (3e6), 'step', 1e-3)}
       'element_coarse', 'warning', {with(stiff (1e5), 'step', 1e-3)}, {with(stiff (8e4), 'step', 1e-3)}
       'elements_together', 'warning', {pairs(2.5e6)}, {pairs(1.9e6)}
       'flexibility', 'warning', {on_chain(1e8)}, {on_chain(1e8, 'attach', 1)}
       'gap_far', 'warning', {with(stop (1))}, {with(stop (1e-3))}
       'never_closes', 'warning', {with(stop (1)), true}, {with(stop (1e-3)), true}
       'never_acts', 'warning', {still(), true}, {with(stiff (10)), true}
       'motion_large', 'warning', {with(stiff (10), 'v0', 3e3), true}, {with(stiff (10)), true}
       'preload', 'note', {with(qn.gap ('gap', -1e-3, 'stiffness', 1e4))}, {with(stop (1e-3))}
       'table_left', 'note', {with(qn.law ('table', 'displacement', [-1e-3 0 1e-3], 'force', [-1 0 1])), true}, {with(straight), true}
       'table_left', 'note', {with(plane (4.6e-3, 2)), true}, {with(plane (5.1e-3, 2)), true}
       'table_left', 'warning', {with(plane (4e-3, 2)), true}, {with(plane (5.1e-3, 2)), true}
       'table_left', 'note', {with(plane (1, 0.9)), true}, {with(plane (1, 1.1)), true}
       'table_left', 'warning', {with(plane (1, 0.5), 'every', 50), true}, {with(plane (1, 1.1), 'every', 50), true}
       'surface_unused', 'warning', {with(plane (0.51, 2)), true}, {with(plane (0.49, 2)), true}
       'surface_unused', 'warning', {with(plane (5e-3, 104)), true}, {with(plane (5e-3, 96)), true}
       'surface_unused', 'note', {with(plane (0.51, 102)), true}, {with(plane (0.49, 98)), true}
       'table_left', 'warning', {with(plane (1, 0.8))}, {with(plane (1, 1.1))}
       'surface_one_way', 'warning', {with(surface ([0 2], [0 1; 1 2]))}, {with(surface ([-1e-3 2], [0 1; 1 2]))}
       'surface_one_way', 'warning', {with(surface ([-2 0], [0 1; 1 2]))}, {with(surface ([-2 1e-3], [0 1; 1 2]))}
       'damper_feeds', 'warning', {with(surface ([-1 2], [0 -1; 1 0]))}, {with(surface ([-1 2], [0 1; 1 2]))}
       'table_jump', 'warning', {with(qn.law ('table', 'displacement', [-1 -1 1], 'force', [-9 -2 2]))}, ...
                                {with(qn.law ('table', 'displacement', [-2 -1 -1 1], 'force', [-9 -9 -2 2]))}
       'table_jump', 'warning', {with(qn.law ('table', 'displacement', [-1 1 1], 'force', [-9 -2 2]))}, {with(straight)}
       'element_one_way', 'warning', {ring_on([1 1])}, {ring_on([1 2])}
       'preload', 'note', {ring_on([1 2], 'centre', [0 2e-3])}, {ring_on([1 2], 'centre', [0 1e-3])}
       'table_alternates', 'warning', {with(sawtooth)}, {with(straight)}
       'maxwell_unstable', 'error', {with(zener (4e-5))}, {with(zener (1e-3))}
       'maxwell_coarse', 'warning', {with(zener (4e-4))}, {with(zener (1e-3))}
       'power_negative', 'warning', {with(qn.law ('power', 'stiffness', 1, 'exponent', 1.5))}, {with(qn.cubic ('stiffness', 1))}
       'stickslip_coarse', 'warning', {with(qn.law ('stickslip', 'contact', 1, 'slip', 2))}, ...
                                      {with(qn.law ('stickslip', 'contact', 1, 'slip', 200))}
       'stickslip_slips', 'warning', {with(sticks (20)), true}, {with(qn.slider ('stiffness', 1e4, 'slip', 20)), true}
       'stickslip_slips', 'note', {with(sticks (200))}, {with(sticks (200)), true}
       'damper_unstable', 'error', {with(qn.damper ('damping', 2.1e4))}, {with(qn.damper ('damping', 1.9e4))}
       'damper_unstable', 'warning', {with(qn.damper ('damping', 2.1e4, 'exponent', 2), 'v0', 1), true}, ...
                                     {with(qn.damper ('damping', 0.9e4, 'exponent', 2), 'v0', 1), true}
       'damper_coarse', 'warning', {with(qn.damper ('damping', 2.1e3))}, {with(qn.damper ('damping', 1.9e3))}
       'damper_chatter', 'note', {with(qn.damper ('damping', 1e3, 'exponent', 0.5))}, {with(qn.damper ('damping', 1e3))}
       'damper_chatter', 'warning', {with(qn.damper ('damping', 2.1e4, 'exponent', 0.5))}, {with(qn.damper ('damping', 2.1e4, 'exponent', 1.5))}
       'damper_chatter', 'warning', {with(qn.damper ('damping', 3e3, 'exponent', 0.5)), true}, ...
                                    {with(qn.damper ('damping', 3e3, 'exponent', 1.5)), true}
       'damper_feeds', 'warning', {with(qn.law ('damper', 'damping', -1))}, {with(qn.law ('damper', 'damping', 1))}
       'film_left', 'error', {on_film(5000), true}, {on_film(300), true}
       'film_left', 'warning', {on_film(790, 'every', 10), true}, {on_film(700, 'every', 10), true}
       'film_long', 'note', {on_film(300, 'until', 1e-3, 'length', 0.051)}, {on_film(300, 'until', 1e-3, 'length', 0.049)}
       'film_long', 'warning', {on_film(300, 'until', 1e-3, 'length', 0.101)}, {on_film(300, 'until', 1e-3, 'length', 0.03)}
       'damper_feeds', 'warning', {with(qn.law ('contact', 'stiffness', 1, 'damping', -1))}, {with(qn.contact ('stiffness', 1))}
       'damper_coarse', 'warning', {with(hit (3e7, 5), 'v0', 1), true}, {with(hit (3e7, 0.5), 'v0', 1), true}
       'element_coarse', 'warning', {with(hit (3e9, 0), 'v0', 1), true}, {with(hit (3e7, 0), 'v0', 1), true}
       'gap_far', 'warning', {with(qn.contact ('stiffness', 1e4, 'gap', 1))}, {with(qn.contact ('stiffness', 1e4, 'gap', 1e-3))}
       'never_closes', 'warning', {with(qn.contact ('stiffness', 1e4, 'gap', 1)), true}, {with(qn.contact ('stiffness', 1e4)), true}
       'preload', 'note', {with(qn.contact ('stiffness', 1e4, 'gap', -1e-3))}, {with(qn.contact ('stiffness', 1e4))}
       'law_speed', 'warning', {turning(rub (0.1, 50))}, {turning(rub (0, 50))}
       'law_speed', 'warning', {turning(oil (50))}, {turning(oil (0))}
       'law_speed', 'warning', {at_speed(rub (0.1, 50), 60)}, {at_speed(rub (0, 50), 60)}
       'law_speed', 'warning', {at_speed(rub (0.1, 0), 60)}, {at_speed(rub (0.1, 60), 60)}
       'law_speed', 'warning', {at_speed(oil (50), 60)}, {at_speed(oil (0), 60)}
       'film_ratio', 'warning', {narrow(9.9e-3)}, {narrow(10.1e-3)}
       'film_ratio', 'warning', {narrow(1.01)}, {narrow(0.99)}
       'load_fast', 'warning', {pushed_at(900)}, {pushed_at(800)}
       'load_fast', 'warning', {turned_at(900)}, {turned_at(800)}
       'unbalance_ends', 'warning', {spun([0 0.1; 0 50])}, {spun([0 0.2; 0 50])}
       'unbalance_speed', 'warning', {spun([0 0.2; 0 60])}, {spun([0 0.2; 0 50])}
       'boucwen_feeds', 'warning', {with(bouc_wen (1, 1.1))}, {with(bouc_wen (1, 1))}
       'boucwen_kink', 'note', {with(qn.boucwen ('stiffness', 1e4, 'yield', 0.01, 'exponent', 0.7))}, {with(qn.boucwen ('stiffness', 1e4, 'yield', 0.01, 'exponent', 1))}
       'boucwen_kink', 'warning', {with(qn.boucwen ('stiffness', 1e4, 'yield', 0.01, 'exponent', 0.2))}, {with(qn.boucwen ('stiffness', 1e4, 'yield', 0.01, 'exponent', 2))}
       'boucwen_feeds', 'warning', {with(bouc_wen (1, -1))}, {with(bouc_wen (1.1, -1))}
       'clima2_stiffness', 'warning', {on_pad(pad (1, 10))}, {on_pad(pad (1, 0))}
       'clima2_normal', 'warning', {on_pad(pad (-1, 0))}, {on_pad(pad (1, 0))}
       'clima2_normal', 'warning', {on_pad(pad (-1, 0)), true}, {on_pad(pad (-1e-3, 0)), true}
       'element_unstable', 'warning', {with(qn.gap ('gap', 4.9e-3, 'stiffness', 1e8), 'step', 1e-3)}, ...
                                      {with(qn.gap ('gap', 5.1e-3, 'stiffness', 1e8), 'step', 1e-3)}
       'mode_rounded', 'note', {pair_on(1)}, {pair_on(0)}
       'base_units', 'warning', {shaken(100)}, {shaken(1)}
       'base_units', 'note', {shaken(0.1)}, {shaken(1)}
       'base_push', 'warning', {cantilever(ones (20, 1))}, {cantilever(repmat ([1; 0], 10, 1))}};
end

% Two masses with a stiff spring between them, on one of SUPPORT newtons a metre.
function sim = pair_on (support)
  sim = qn.simulation (qn.modal (1e13 * [1 -1; -1 1] + diag ([support, 0]), eye (2)), 'step', 1e-8, 'until', 1e-4, 'v0', [1; 1]);
end

% A ring with a gap of 1 mm around the degrees of freedom AT.
function sim = ring_on (at, varargin)
  model = qn.modal (4e4 * eye (2), eye (2));
  sim = qn.simulation (model, 'step', 1e-4, 'until', 0.2, 'v0', [1; 1], 'elements', ...
                       {qn.radial('gap', 1e-3, 'stiffness', 1e5, varargin{:}), qn.observe(model, at)});
end

% A base that shakes for ten seconds as an earthquake of 0.3 g does, in m/s^2 times FACTOR.
function sim = shaken (factor)
  t = 0:0.01:10;
  record = [t; 3 * factor * sin(2 * pi * 1.3 * t) .* exp(-((t - 4) / 2) .^ 2)];
  sim = qn.simulation (qn.modal (4e4, 1, 'damping', 0.02), 'step', 1e-3, 'until', 10, 'base', {1, record});
end

% A cantilever of ten beams, displacement and rotation at each node.
function sim = cantilever (push)
  l = 0.3;
  own = 1e5 / l ^ 3 * [12 6*l -12 6*l; 6*l 4*l^2 -6*l 2*l^2; -12 -6*l 12 -6*l; 6*l 2*l^2 -6*l 4*l^2];
  mass = 3 / 420 * [156 22*l 54 -13*l; 22*l 4*l^2 13*l -3*l^2; 54 13*l 156 -22*l; -13*l -3*l^2 -22*l 4*l^2];
  [k, m] = deal (zeros (22));
  for j = 1:2:19
    k(j:j + 3, j:j + 3) = k(j:j + 3, j:j + 3) + own;
    m(j:j + 3, j:j + 3) = m(j:j + 3, j:j + 3) + mass;
  end
  model = qn.modal (k(3:end, 3:end), m(3:end, 3:end), 'modes', 2, 'damping', 0.02);
  sim = qn.simulation (model, 'step', 1e-3, 'until', 2, 'base', {push, @(t) 5 * sin(20 * t)});
end

function law = hit (stiffness, damping)
  law = qn.contact ('stiffness', stiffness, 'damping', damping, 'gap', 1e-3);
end

% A spring of 10 N/m and a dashpot of 1 N s/m, measured up to X metres and V metres a second.
function law = plane (x, v)
  law = qn.law ('surface', 'displacement', [-x x], 'velocity', [-v v], 'force', 10 * [-x -x; x x] + [-v v; -v v]);
end

function law = surface (velocity, force)
  law = qn.law ('surface', 'displacement', [-1 1], 'velocity', velocity, 'force', force);
end

function law = bouc_wen (beta, gamma)
  law = qn.law ('boucwen', 'stiffness', 100, 'ratio', 0.1, 'beta', beta, 'gamma', gamma);
end

function law = sticks (slip)
  law = qn.law ('stickslip', 'contact', 1e4, 'slip', slip);
end

function law = rub (friction, speed)
  law = qn.radial ('gap', 1e-3, 'stiffness', 1e4, 'friction', friction, 'radius', 0.01, 'speed', speed);
end

function law = oil (speed)
  law = qn.journal ('viscosity', 1e-3, 'length', 0.01, 'radius', 0.02, 'clearance', 1e-4, 'speed', speed);
end

% A run-up with an element on both directions.
function sim = turning (law)
  model = qn.modal (4e4 * eye (2), eye (2), 'G', [0 1; -1 0], 'speed', 0);
  sim = qn.simulation (model, 'step', 1e-4, 'until', 0.2, 'v0', [1; 0], 'speed', [0 1; 0 100], 'elements', {law, eye(2)});
end

% A rotor that turns steadily, with an element on both directions.
function sim = at_speed (law, speed)
  model = qn.modal (4e4 * eye (2), eye (2), 'G', [0 1; -1 0], 'speed', speed);
  sim = qn.simulation (model, 'step', 1e-4, 'until', 0.2, 'v0', [1; 0], 'elements', {law, eye(2)});
end

% A run-up to 50 rad/s in which an unbalance turns along PROFILE.
function sim = spun (profile)
  model = qn.modal (4e4 * eye (2), eye (2), 'G', [0 1; -1 0], 'speed', 0);
  sim = qn.simulation (model, 'step', 1e-4, 'until', 0.2, 'speed', [0 0.2; 0 50], 'load', qn.unbalance (model, [1 2], 1e-3, 'profile', profile));
end

% Two modes of a chain, the higher one of 831 rad/s, under a force or an unbalance of W rad/s.
function sim = pushed_at (w)
  model = chain ('modes', 2);
  sim = qn.simulation (model, 'step', 1e-4, 'until', 0.3, 'load', {qn.load_at(model, 5), @(t) sin(w * t)});
end

function sim = turned_at (w)
  model = chain ('modes', 2);
  sim = qn.simulation (model, 'step', 1e-4, 'until', 0.3, 'load', qn.unbalance (model, [2 3], 1e-3, 'speed', w));
end

% A film of 0.1 mm around a journal of RADIUS.
function sim = narrow (radius)
  film = qn.law ('journal', 'viscosity', 1e-3, 'length', 0.001, 'radius', radius, 'clearance', 1e-4, 'speed', 100);
  sim = qn.simulation (qn.modal (4e4 * eye (2), eye (2)), 'step', 1e-4, 'until', 0.1, 'v0', [1e-3; 0], 'elements', {film, eye(2)});
end

% A journal of 10 kg on its film, which carries 774 N at its limit, pushed from the middle with LOAD newtons.
function sim = on_film (load, varargin)
  o = struct ('length', 0.03, 'until', 0.1, 'every', 1);
  for k = 1:2:numel (varargin), o.(varargin{k}) = varargin{k + 1}; end
  film = qn.journal ('viscosity', 0.01, 'length', o.length, 'radius', 0.05, 'clearance', 1e-4, 'speed', 100, 'limit', 0.8);
  model = qn.modal (zeros (2), 10 * eye (2));
  sim = qn.simulation (model, 'step', 1e-5, 'until', o.until, 'every', o.every, 'elements', {film, qn.observe(model, eye (2))}, ...
                       'load', {qn.load_at(model, 1), @(t) load * (t >= 0)});
end

% A pad whose normal force reaches LEAST newtons 10 mm below its place of rest.
function law = pad (least, stiffness)
  law = qn.law ('clima2', 'displacement', [-0.01; 0; 0.01], 'normal', [least; 10; 10], 'growth', [100; 100; 100], 'friction', 0.3, ...
                'offset', 10, 'stiffness', stiffness);
end

function sim = on_pad (law)
  sim = qn.simulation (qn.modal (diag ([4e4 4e4 4e4]), eye (3)), 'step', 1e-4, 'until', 0.2, 'v0', [1; 1; 1.99], 'elements', {law, eye(3)});
end

function sim = given (model, shape)
  sim = qn.simulation (model, 'step', 1e-5, 'until', 0.1, 'u0', 1e-3 * shape);
end

function law = turned (law)
  law.parameters.displacement = flipud (law.parameters.displacement);
end

function sim = push_of (model, shape)
  sim = qn.simulation (model, 'step', 1e-5, 'until', 0.1, 'load', {shape, @(t) sin(30 * t)});
end

% The second mass does not move.
function sim = still ()
  model = qn.modal (diag ([4e4 4e4]), eye (2));
  sim = qn.simulation (model, 'step', 1e-4, 'until', 0.2, 'v0', [1; 0], 'elements', {qn.cubic('stiffness', 10), qn.observe(model, 2)});
end

function found = look (set_up)
  if numel (set_up) > 1
    found = qn.check (set_up{1}, qn.run (set_up{1}, 'progress', false, 'check', false));
  else
    found = qn.check (set_up{1});
  end
end

function test_every_finding_is_raised_where_it_belongs_and_nowhere_else ()
  rows = cases ();
  for k = 1:size (rows, 1)
    [code, level] = rows{k, 1:2};
    found = look (rows{k, 3});
    at = find (strcmp ({found.code}, code), 1);
    if isempty (at), error ('%s is not found, but: %s', code, strjoin ({found.code}, ', ')); end
    expect_equal (found(at).level, level);
    if numel (found(at).text) < 20, error ('%s says "%s"', code, found(at).text); end
    found = look (rows{k, 4});
    if any (strcmp ({found.code}, code)), error ('%s where there is no cause: %s', code, found(strcmp ({found.code}, code)).text); end
  end
end

function test_every_finding_has_a_case_here_and_a_line_in_the_documents ()
  known = sort (qn.impl.finding ('codes'));
  rows = cases ();
  expect_equal (unique (rows(:, 1)).', known);
  text = fileread (fullfile (project_folder (), 'docs', 'checks.md'));
  lines = regexp (text, '\n\| `(\w+)` \| ([a-z, ]+) \|', 'tokens');
  lines = cat (1, lines{:});
  expect_equal (sort (lines(:, 1)).', known);
  for k = 1:size (rows, 1)
    told = lines{strcmp (lines(:, 1), rows{k, 1}), 2};
    if isempty (strfind (told, rows{k, 2})), error ('docs/checks.md calls %s %s, it is a %s', rows{k, 1}, told, rows{k, 2}); end
  end
  expect_error (@() qn.impl.finding ('other', 'note', 'x'), 'qn:internal', '~no finding is called "other"');
end

% Every word that the toolbox hands to its findings is in the list: no code is made elsewhere.
function test_no_code_is_in_the_list_in_vain ()
  folder = fullfile (project_folder (), 'toolbox', '+qn', '+impl');
  text = '';
  files = [dir(fullfile (folder, '*.m')); dir(fullfile (folder, '+laws', '*.m'))];
  for f = files.'
    if strcmp (f.name, 'finding.m'), continue, end
    file = fullfile (folder, f.name);
    if ~exist (file, 'file'), file = fullfile (folder, '+laws', f.name); end
    text = [text, fileread(file)];
  end
  for code = qn.impl.finding ('codes')
    if isempty (regexp (text, ['''' code{1} '[:'']'], 'once')), error ('%s is raised nowhere', code{1}); end
  end
end

function test_a_run_warns_before_it_starts_once_a_code ()
  sim = good ('elements', {qn.stop('gap', 1, 'stiffness', 1e4), 1; qn.stop('gap', 2, 'stiffness', 1e4), 1});
  said = evalc ('qn.run (sim, ''progress'', false);');
  expect_equal (numel (strfind (said, 'warning: ')), 1);
  if isempty (strfind (said, '(and 1 more like this; qn.check lists them)')), error ('said: %s', said); end
  [text, id] = lastwarn ();
  expect_equal (id, 'qn:check:gap_far');
  expect_equal (evalc ('qn.run (sim, ''progress'', false, ''check'', false);'), '');
  before = warning ('off', 'qn:check:gap_far');
  back = onCleanup (@() warning (before));
  expect_equal (evalc ('qn.run (sim, ''progress'', false);'), '');
end

function test_notes_do_not_interrupt_a_run ()
  sim = good ('until', 0.01);
  found = qn.check (sim);
  expect_equal ({found.level}, {'note'});
  expect_equal (evalc ('qn.run (sim, ''progress'', false);'), '');
end

% A cubic spring says nothing of its stiffness before the motion is known; after the run it does.
function test_stiffness_of_the_motion_that_occurred_is_looked_at_after_the_run ()
  sim = with (qn.cubic ('stiffness', 1e11), 'step', 1e-3, 'until', 0.05);
  expect_equal (numel (qn.check (sim)), 0);
  said = evalc ('qn.run (sim, ''progress'', false);');
  if isempty (strfind (said, 'element 1')), error ('said: "%s"', said); end
end

% A stop so stiff that it throws the mass back within the step of its prediction: no displacement is past the gap, but the force acted.
function test_a_contact_that_only_the_prediction_meets_is_named ()
  sim = with (qn.gap ('gap', 1e-3, 'stiffness', 1e12));
  x = 0.9e-3 * sin (linspace (0, 6, 2001));
  res = struct ('force', zeros (1, 2001));
  res.force(700) = 2e4;
  x = qn.impl.met (sim.elements.law, x, res.force);
  expect_equal (max (x), 1e-3 + 2e-8, 1e-12);
  found = qn.impl.check_law (sim, 1, x, 1, [], [], []);
  expect_equal (found(1).code, 'element_unstable');
end

% A stop with 20 for 20 mm, as met: named, with both numbers.
function test_a_gap_in_millimetres_is_named_with_the_motion_that_is_possible ()
  sim = with (qn.gap ('gap', 20, 'stiffness', 1e6));
  found = qn.check (sim);
  expect_equal (found.code, 'gap_far');
  if isempty (regexp (found.text, '20 m is 4e\+03 times as far .*0\.005 m', 'once')), error ('%s', found.text); end
end

% What the linear model can reach is a bound that runs keep, and of the right size.
function test_the_bound_of_the_motion_holds ()
  rand ('state', 11);
  for round = 1:30
    zeta = [0 0.02 0.3](1 + mod (round, 3));
    model = qn.modal (diag ([1 4 9] * 1e4 .* (0.5 + rand (1, 3))), eye (3), 'damping', zeta);
    w = model.w(1) * (0.98 + 0.04 * rand ());
    sim = qn.simulation (model, 'step', 2e-4, 'until', 1, 'load', {rand(3, 1) + 0.1, @(t) 50 * sin(w * t)}, 'v0', rand (3, 1), ...
                         'u0', 1e-3 * rand (3, 1));
    res = qn.run (sim, 'progress', false, 'check', false);
    share = max (abs (res.q), [], 2) ./ qn.impl.motion_bound (sim);
    if any (share > 1.001) || max (share) < 0.1, error ('reached shares of the bound: %s', mat2str (share, 3)); end
  end
end

% Directions, differences and sums of few degrees of freedom are found again from their modal rows.
function test_places_are_found_from_modal_rows ()
  rand ('state', 12);
  randn ('state', 12);
  a = randn (30, 33);
  model = qn.modal (a * a.', eye (30), 'modes', 9);
  for round = 1:40
    dofs = randperm (30, 1 + mod (round, 2));
    weights = [1, randn()](1:numel (dofs));
    [p, found] = qn.impl.places (model.shapes, qn.observe (model, dofs, weights));
    if ~found, error ('%d places are not found', numel (dofs)); end
    expect_equal (full (p(dofs)), weights(:), 1e-6);
    expect_equal (nnz (p), numel (dofs));
  end
  % Four of them, as in a stretch between two nodes along a direction, with more modes to tell by.
  model = qn.modal (a * a.', eye (30), 'modes', 20);
  hits = 0;
  for round = 1:20
    dofs = randperm (30, 4);
    [p, found] = qn.impl.places (model.shapes, qn.observe (model, dofs, [0.6 0.8 -0.6 -0.8]));
    if found, expect_equal (full (p(dofs)), [0.6; 0.8; -0.6; -0.8], 1e-6); end
    hits = hits + found;
  end
  if hits < 15, error ('%d of 20 stretches are found', hits); end
  [p, found] = qn.impl.places (model.shapes, randn (2, 20));
  expect_equal (found, [false false]);
end

% The number in the text is the share that the truncated series leaves out.
function test_the_missing_flexibility_is_the_residual_of_the_series ()
  model = chain ('modes', 2);
  k = model.K;
  found = qn.check (on_chain (1e9));
  whole = [1 0 0 0 0] / k * [1; 0; 0; 0; 0];
  held = model.shapes(1, :) .^ 2 * (1 ./ model.stiffness);
  share = 100 * (whole - held) / (whole + 1e-9);
  expect_equal (found.code, 'flexibility');
  if isempty (strfind (found.text, sprintf ('hold %.1f %%', 100 * held / whole))) || ...
       isempty (strfind (found.text, sprintf ('%.0f %% too', share)))
    error ('%.4g, %.4g: %s', 100 * held / whole, share, found.text);
  end
end

% A free-free beam of masses: the rigid motion is no flexibility.
function test_flexibility_of_a_free_structure_is_that_of_its_shape ()
  n = 8;
  k = 1e6 * full (spdiags ([-ones(n, 1), [1; 2 * ones(n - 2, 1); 1], -ones(n, 1)], -1:1, n, n));
  for attached = [false true]
    more = {};
    if attached, more = {'attach', 1}; end
    model = qn.modal (k, eye (n), 'modes', 3, more{:});
    sim = qn.simulation (model, 'step', 1e-5, 'until', 0.1, 'v0', -ones (n, 1), 'elements', ...
                         {qn.gap('gap', 1e-4, 'stiffness', 1e8), qn.observe(model, 1, -1)});
    found = qn.check (sim);
    expect_equal (any (strcmp ({found.code}, 'flexibility')), ~attached);
  end
end

% The newtons of "boucwen_kink" against ways through z = 0 in one step, compared with the same way in 500 parts.
% What grows by e in some hundredths of a second is far beyond any structure before it is beyond all numbers.
function test_a_force_of_the_wrong_sign_does_not_grow_without_a_word ()
  for law = {qn.law('table', 'displacement', [-1 1], 'force', [1e5 -1e5]), qn.law('power', 'stiffness', -1e5, 'exponent', 1)}
    sim = good ('elements', {law{1}, 1}, 'until', 0.5);
    said = evalc ('res = qn.run (sim, ''progress'', false);');
    assert (abs (res.q(end)) > 1e6 && res.complete);
    words = sprintf ('element 1 moves by %.3g m at the end: a force of the wrong sign', abs (res.q(end)));
    if isempty (strfind (said, words)), error ('said: %s', said); end
  end
end

function test_the_error_at_a_kink_of_bouc_wen_is_bounded_by_what_is_said ()
  for exponent = [0.2 0.35 0.5 0.7]
    law = qn.law ('boucwen', 'stiffness', 1e4, 'ratio', 0, 'beta', 1, 'gamma', 0, 'exponent', exponent);
    found = qn.check (with (law));
    text = found(strcmp ({found.code}, 'boucwen_kink')).text;
    said = cellfun (@str2double, regexp (text, 'up to ([\d.e+]+) N', 'tokens'));
    if numel (said) ~= 2, error ('it said "%s"', text); end
    off = [0 0];
    for way = [0.1 0.5 1 1.8]
      for back = [0.03 0.3]
        to = linspace (0, -back, 200);
        once = qn.force (law, [to, way - back], zeros (1, 201), 1e-3);
        fine = qn.force (law, [to, linspace(-back, way - back, 501)], zeros (1, 701), 1e-3);
        e = abs (once(end) - fine(end));
        if fine(end) > 0, off = max (off, [e, e * (way <= 0.1)]); end
      end
    end
    if any (off > said) || off(1) < said(1) / 20, error ('exponent %g: off by %g and %g N, said were %g and %g N', exponent, off, said); end
  end
end
