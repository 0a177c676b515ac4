% QN.CAMPBELL  whirl speeds, damping and critical speeds of a rotor over its speed of rotation
%
% Purpose
%   The poles of M q'' + (C + W G) q' + (K + W N) q = 0 at every speed W, followed from speed to speed by their shapes, with the direction of the
%   whirl; the critical speeds, where a whirl speed meets an order of the speed of rotation; and the speeds where a mode loses its damping.
%
% Calls
%   D = qn.campbell (R, SPEEDS, ...)
%
% Input
%   R        from qn.rotor, with bearings by speed or without, or a structure with the fields M, K and perhaps C, G and N [per rad/s]
%   SPEEDS   speeds of rotation, ascending, two or more [rad/s]
%   Names and values
%     'modes'   how many modes to give: those with the lowest whirl speeds within SPEEDS, modes that are damped by 0.9 or more throughout
%               after the others; and besides every mode with a critical speed, or one where damping is lost below the greatest of the
%               orders, that is damped by less than 0.5 there (8)
%     'orders'  multiples of the speed for the critical speeds: 1 for unbalance, 2 for a shaft that bends differently in two planes (1)
%     'places'  rows [x y]: numbers of the degrees of freedom of each node, for the direction of the whirl; those of qn.rotor are known
%     'basis'   how many modes of the rotor at rest to form the poles with, for large models; all degrees of freedom without it ([]).
%               These modes have no damping and the stiffness of the bearings at the middle one of SPEEDS: a basis does not hold the
%               motions of heavily damped bearings, nor well what stiffness changes much with the speed. Compare with twice as many.
%
% Output
%   D   struct: speed      1 x k, as given [rad/s]; negative: the shaft turns y towards x
%               whirl      p x k whirl speeds, the imaginary parts of the poles [rad/s], NaN where a mode does not oscillate
%               damping    p x k damping ratios; negative: the motion grows
%               direction  p x k, 1 for circles forward (in the sense of rotation) through 0 for lines to -1 for circles backward, by the
%                          areas of the orbits; of two equal whirl speeds one is taken forward, one backward; NaN without places
%               pole       p x k [1/s]
%               critical   struct array by speed: speed, order, mode (row), whirl, damping, direction, shape (n x 1)
%               unstable   the same, without order, where a damping falls below 0 within the speeds
%   Warning qn:campbell: with "basis", rows that are damped by 0.9 or more throughout, which it does not hold.
%   Critical speeds are found between SPEEDS that they lie between; two of one mode between two neighbours are missed.
%
% Errors
%   qn:input  matrices or options do not fit, a value is not finite, speeds do not ascend, M is singular
%
% Source
%   W. Campbell, ASME Transactions 46, 1924; G. Genta, Dynamics of Rotating Systems, 2005
%
% Example
%   r = qn.rotor ('nodes', 0:0.25:1.5, 'outer', 0.05, 'cylinders', [3 0.07 0.28 0.05 7810; 5 0.07 0.35 0.05 7810], ...
%                 'bearings', {1, 1e6, 100; 7, 1e6, 100});
%   d = qn.campbell (r, (0:250:4000) * pi / 30);
%   rpm = [d.critical.speed] * 30 / pi
%
% See also qn.rotor, qn.plot.campbell, qn.unbalance
function d = campbell (r, speeds, varargin)
  who = 'qn.campbell';
  if nargin < 2, error ('qn:input', '%s: a rotor and speeds expected; see help %s', who, who); end
  o = qn.impl.options (who, struct ('modes', 8, 'orders', 1, 'places', [], 'basis', []), varargin);
  speeds = reshape (qn.impl.numbers (who, 'SPEEDS', speeds, [], 'list', 'ascending'), 1, []);
  if numel (speeds) < 2, error ('qn:input', '%s: "SPEEDS" must be two speeds or more, got 1', who); end
  o.modes = qn.impl.count (who, 'modes', o.modes);
  o.orders = reshape (qn.impl.numbers (who, 'orders', o.orders, [], 'list', 'above', 0), 1, []);
  middle = speeds(ceil (numel (speeds) / 2));
  s = qn.impl.rotor.eigenproblem (who, r, o.places, struct ('count', o.basis, 'speed', middle));
  at = cell (size (speeds));
  for k = 1:numel (speeds), at{k} = qn.impl.rotor.poles (s, speeds(k)); end
  number = qn.impl.rotor.chains (s, at, o.modes, o.orders);
  d = struct ('speed', speeds, 'whirl', [], 'damping', [], 'direction', [], 'pole', []);
  d.pole = complex (NaN (size (number)), NaN (size (number)));
  d.direction = NaN (size (number));
  for k = 1:numel (speeds)
    there = number(:, k) > 0;
    d.pole(there, k) = at{k}.pole(number(there, k));
    d.direction(there, k) = at{k}.whirl(number(there, k));
  end
  d.whirl = imag (d.pole);
  d.damping = -real (d.pole) ./ abs (d.pole);
  if ~isempty (o.basis), not_held (who, d.damping); end
  lists = cell (size (o.orders));
  for k = 1:numel (o.orders)
    order = o.orders(k);
    lists{k} = found (s, at, number, order, @(pole, speed) imag (pole) - order * abs (speed));
  end
  d.critical = joined (lists);
  % What rounding leaves of no damping is no loss of it.
  lost = found (s, at, number, 0, @(pole, speed) real (pole) + 0 * speed);
  d.unstable = rmfield (lost, 'order');
end

% Modes that hardly oscillate are those of the dampers, which modes without damping do not describe.
function not_held (who, damping)
  least = min (damping, [], 2);
  bad = find (least >= 0.9);
  if isempty (bad), return, end
  warning ('qn:campbell', ['%s: %d of %d rows have damping ratios of %.3g or more, the first is row %d; "basis", modes without ' ...
                           'damping, does not hold such motions. Their whirl and critical speeds are not to be relied on: ask for ' ...
                           'fewer "modes", or form the poles without "basis"'], ...
           who, numel (bad), size (damping, 1), min (least(bad)), bad(1));
end

% By speed; structs without elements stay structs.
function list = joined (lists)
  list = lists{1};
  for k = 2:numel (lists)
    for c = lists{k}, list(end + 1) = c; end
  end
  [unused, by] = sort (arrayfun (@(c) c.speed, list));
  list = list(by);
end

function list = found (s, at, number, order, measure)
  list = struct ('speed', {}, 'order', {}, 'mode', {}, 'whirl', {}, 'damping', {}, 'direction', {}, 'shape', {});
  for mode = 1:size (number, 1)
    was_damped = false;
    for k = 2:size (number, 2)
      [i, j] = deal (number(mode, k - 1), number(mode, k));
      if i == 0 || j == 0, continue, end
      first = measure (at{k - 1}.pole(i), at{k - 1}.speed);
      last = measure (at{k}.pole(j), at{k}.speed);
      if order == 0
        damped = first < -1e-8 * abs (at{k - 1}.pole(i));
        lost = last > 1e-8 * abs (at{k}.pole(j));
        if lost && ~damped && was_damped && abs (first) <= 1e-8 * abs (at{k - 1}.pole(i))
          % One of the speeds is where the damping is lost.
          list(end + 1) = entry (s, at{k - 1}, i, mode, order);
        end
        was_damped = damped || (was_damped && ~lost);
        if ~(damped && lost), continue, end
      elseif (first > 0) == (last > 0)
        continue
      end
      [p, n] = qn.impl.rotor.crossing (s, at{k - 1}, i, at{k}, j, measure);
      list(end + 1) = entry (s, p, n, mode, order);
    end
  end
end

% Pole N of P.
function x = entry (s, p, n, mode, order)
  x = struct ('speed', p.speed, 'order', order, 'mode', mode, 'whirl', imag (p.pole(n)), ...
              'damping', -real (p.pole(n)) / abs (p.pole(n)), 'direction', p.whirl(n), 'shape', s.basis * p.shape(:, n));
end
