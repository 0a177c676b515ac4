% ARGS = THROUGH_SPEEDS (WHO, R, SPEEDS)  arguments of qn.modal, from its "K" on, of a rotor whose bearings are those of every speed
%
% The modes are those at the middle one of SPEEDS, which get the knots of tables between them. A line between two of them is compared with
% the bearings half-way.
function args = through_speeds (who, r, speeds)
  speeds = reshape (qn.impl.numbers (who, 'speeds', speeds, [], 'list', 'ascending'), 1, []);
  if numel (speeds) < 2, error ('qn:input', '%s: "speeds" must be two speeds or more, got 1', who); end
  qn.impl.rotor.unchanged (who, r);
  if isfield (r.parts.supports, 'knots')
    knots = [r.parts.supports.knots];
    speeds = unique ([speeds, knots(knots > speeds(1) & knots < speeds(end))]);
  end
  count = numel (speeds);
  at = @(w) qn.impl.rotor.at_speed (r, w);
  middle = at (speeds(ceil (count / 2)));
  rows = cell (count, 3);
  worst = struct ('off', 0, 'between', [], 'what', '');
  for j = 1:count
    now = at (speeds(j));
    same_mass (who, middle, now);
    rows(j, :) = {speeds(j), now.K - middle.Ks, now.C - r.parts.C};
    if j > 1, worst = off_the_line (worst, before, at ((speeds(j - 1) + speeds(j)) / 2), now); end
    before = now;
  end
  if worst.off > 0.01
    warning ('qn:modal', ['%s: half-way between %g and %g rad/s the %s of the bearings is %.2g %% off the line between the two; give ' ...
                          'more "speeds" there'], who, worst.between, worst.what, 100 * worst.off);
  end
  speed = r.speed;
  if isempty (speed), speed = speeds(1); end
  args = {middle.Ks, middle.M, 'C', r.parts.C, 'G', r.G, 'speed', speed, 'by_speed', rows};
end

function same_mass (who, a, b)
  off = norm (a.M - b.M, 'fro') / norm (a.M, 'fro');
  if off <= 1e-12, return, end
  error ('qn:input', ['%s: a seal has another added mass at %g rad/s than at %g rad/s (%.2g of M); the masses of a run-up stay the ' ...
                      'same'], who, b.speed, a.speed, off);
end

% The greatest distance from the line between A and B, of stiffness and damping of the bearings half-way.
function worst = off_the_line (worst, a, half, b)
  names = {'stiffness', 'damping'};
  for k = 1:2
    field = 'KC';
    field = field(k);
    own = a.parts.(field);
    size_of = max ([norm(a.(field) - own, 'fro'), norm(b.(field) - own, 'fro')]);
    off = norm (half.(field) - (a.(field) + b.(field)) / 2, 'fro') / max (size_of, realmin ());
    if off > worst.off, worst = struct ('off', off, 'between', [a.speed, b.speed], 'what', names{k}); end
  end
end
