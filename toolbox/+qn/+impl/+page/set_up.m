% HTML = SET_UP (SIM)  model, scheme, loads, initial state and elements in words
function html = set_up (sim)
  m = sim.model;
  count = @(n, one, many) sprintf ('%d %s', n, [one(1:end * (n == 1)), many(1:end * (n ~= 1))]);
  model = sprintf ('%s of %s', count (numel (m.w), 'modal coordinate', 'modal coordinates'), ...
                   count (size (m.shapes, 1), 'degree of freedom', 'degrees of freedom'));
  hertz = m.w(isfinite (m.w)) / (2 * pi);
  range = '';
  if ~isempty (hertz), range = span ('%.5g', min (hertz), max (hertz), 'Hz'); end
  zeta = 'full damping matrix';
  if size (m.damping, 2) == 1
    used = m.w > 0;
    ratio = m.damping(used) ./ (2 * m.w(used));
    zeta = '';
    if ~isempty (ratio), zeta = span ('%.4g', min (ratio), max (ratio), 'of critical'); end
  end
  coupled = '';
  if size (m.stiffness, 2) > 1, coupled = 'by a full stiffness matrix'; end
  scheme = sprintf ('Newmark, beta %.6g, gamma %.6g', sim.scheme.beta, sim.scheme.gamma);
  if isfield (sim.scheme, 'name'), scheme = sprintf ('%s (%s)', scheme, sim.scheme.name); end
  steps = sprintf ('%.6g s, %d steps from %.6g to %.6g s, %d times kept', sim.step, ...
                   numel (sim.time) - 1, sim.time([1 end]), numel (sim.saved));
  n = numel (m.w);
  v = norm (sim.start.v(1:n)) ^ 2 / 2;
  start = 'at rest';
  if any (sim.start.u(1:n)) || v > 0, start = sprintf ('in motion or displaced; kinetic energy %.4g J', v); end
  facts = {'Model', model; 'Frequencies', range; 'Damping', zeta; 'Modes coupled', coupled; 'Rotation', rotation_of(sim)
           'Changes with time', tables_of(sim); 'Scheme', scheme; 'Step', steps
           'Start', start};
  html = sprintf ('<h2>Set-up</h2>\n%s', qn.impl.page.facts (facts));
  html = sprintf ('%s\n<h3>Loads</h3>\n%s\n<h3>Elements</h3>\n%s', html, load_list (sim), element_list (sim));
end

% The speed of a rotor and what goes with it.
function text = rotation_of (sim)
  text = '';
  if ~qn.impl.turns (sim.model), return, end
  r = sim.model.rotation;
  speed = r.speed;
  if qn.impl.runs_up (sim), speed = qn.impl.speed_at (sim, sim.time); end
  speed = [min(speed), max(speed)];
  text = sprintf ('%s (%s)', span ('%.6g', speed(1), speed(2), 'rad/s'), span ('%.5g', speed(1) * 30 / pi, speed(2) * 30 / pi, 'rpm'));
  names = {'gyroscopic matrix', 'circulatory matrix', 'stiffness and damping by speed'};
  text = sprintf ('%s; %s', text, strjoin (names([any(r.G(:)), qn.impl.circulates(r), qn.impl.by_speed(r)]), ', '));
end

function text = tables_of (sim)
  text = '';
  if ~isfield (sim, 'varying') || isempty (sim.varying), return, end
  text = sprintf ('%d matrices of stiffness and %d of damping, by tables', sum ([sim.varying.type] == 1), sum ([sim.varying.type] == 3));
end

function text = span (format, low, high, unit)
  [low, high] = deal (sprintf (format, low), sprintf (format, high));
  text = sprintf ('%s to %s %s', low, high, unit);
  if strcmp (low, high), text = sprintf ('%s %s', low, unit); end
end

function html = load_list (sim)
  cells = cell (0, 4);
  for k = 1:size (sim.loads, 1)
    y = sim.loads(k, isfinite (sim.loads(k, :)));
    if isempty (y), y = 0; end
    cells(k, :) = {k, min(y), max(y), sqrt(mean (y .^ 2))};
  end
  html = '<p>none</p>';
  if ~isempty (cells), html = qn.impl.page.grid_of ({'Load', 'least', 'greatest', 'root mean square'}, cells); end
  for k = 1:numel (sim.notes), html = sprintf ('%s\n<p>%s</p>', html, qn.impl.page.escaped (sim.notes{k})); end
end

function html = element_list (sim)
  cells = cell (0, 3);
  for e = sim.elements
    acts = 'where it looks';
    if ~isequal (full (e.observe), full (e.command)), acts = 'elsewhere'; end
    cells(end + 1, :) = {e.item, qn.impl.law_text(e.law), acts};
  end
  html = '<p>none: the model is linear</p>';
  if ~isempty (cells), html = qn.impl.page.grid_of ({'Element', 'Law', 'Acts'}, cells); end
end
