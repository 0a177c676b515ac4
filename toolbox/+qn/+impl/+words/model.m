% FACTS = MODEL (M)          a modal model, rows of a name and what is said
% FACTS = MODEL (M, SPEEDS)  in a run-up at these speeds [rad/s]
function facts = model (m, speeds)
  count = @qn.impl.words.count;
  n = numel (m.w);
  attached = 0;
  if isfield (m, 'attached'), attached = m.attached; end
  size_of = sprintf ('%s of %s', count (n, 'modal coordinate', 'modal coordinates'), ...
                     count (size (m.shapes, 1), 'degree of freedom', 'degrees of freedom'));
  if attached > 0, size_of = sprintf ('%s, with %s', size_of, count (attached, 'attached shape', 'attached shapes')); end
  w = m.w(1:n - attached);
  hertz = qn.impl.words.span ('%.5g', w(isfinite (w)) / (2 * pi), 'Hz');
  rigid = sum (w == 0);
  if rigid > 0, hertz = sprintf ('%s; %s', hertz, count (rigid, 'rigid motion', 'rigid motions')); end
  zeta = 'full damping matrix';
  if size (m.damping, 2) == 1
    used = m.w > 0;
    zeta = qn.impl.words.span ('%.4g', m.damping(used) ./ (2 * m.w(used)), 'of critical');
  end
  coupled = '';
  if size (m.stiffness, 2) > 1, coupled = 'by a full stiffness matrix'; end
  if nargin < 2, speeds = []; end
  facts = {'Model', size_of; 'Frequencies', hertz; 'Damping', zeta; 'Modes coupled', coupled; 'Rotation', rotation_of(m, speeds)};
end

% The speed of a rotor and what goes with it.
function text = rotation_of (m, speeds)
  text = '';
  if ~qn.impl.turns (m), return, end
  r = m.rotation;
  if isempty (speeds), speeds = r.speed; end
  text = sprintf ('%s (%s)', qn.impl.words.span ('%.6g', speeds, 'rad/s'), qn.impl.words.span ('%.5g', speeds * 30 / pi, 'rpm'));
  names = {'gyroscopic matrix', 'circulatory matrix', 'stiffness and damping by speed'};
  text = sprintf ('%s; %s', text, strjoin (names([any(r.G(:)), qn.impl.circulates(r), qn.impl.by_speed(r)]), ', '));
end
