% FOUND = CHECK_BASE (SIM)  motions of the base that are hardly in m/s^2, and directions that strain the structure
%
% The speed of the base, the integral of its acceleration without its mean and slope, tells units apart: shocks of thousands of m/s^2 last
% milliseconds and give some m/s, an earthquake in cm/s^2 gives tens. A record in units of g looks like a weak one: a note.
function found = check_base (sim)
  found = qn.impl.finding ();
  if ~isfield (sim, 'base') || isempty (sim.base), return, end
  for k = 1:numel (sim.base.loads)
    a = sim.loads(sim.base.loads(k), :);
    peak = max (abs (a));
    speed = base_speed (a, sim.step);
    if peak > 20 && speed > 5
      found(end + 1) = qn.impl.finding ('base_units', 'warning', ...
        ['base %d reaches %.3g m/s^2 (%.2g g), with which the base moves at up to %.2g m/s: is the record in m/s^2? One in cm/s^2 is ' ...
         'multiplied by 0.01, one in mm/s^2 by 0.001'], k, peak, peak / 9.80665, speed);
    elseif peak < 2 && peak > 0 && measured (sim, k)
      found(end + 1) = qn.impl.finding ('base_units', 'note', ...
        ['base %d reaches %.3g m/s^2, which is %.2g g: a weak motion, unless the record is in units of g and is to be multiplied by ' ...
         '9.80665'], k, peak, peak / 9.80665);
    end
    if isfield (sim.model, 'K'), found = [found, strained(sim, k)]; end
  end
end

% Greatest integral of A, sampled every H, once its mean and slope are taken off.
function speed = base_speed (a, h)
  t = linspace (-1, 1, numel (a));
  a = a - mean (a) - t * (a * t.') / (t * t.');
  v = cumsum (a) * h;
  speed = (max (v) - min (v)) / 2;
end

% Whether base K is a table of many values.
function yes = measured (sim, k)
  yes = false;
  if ~isstruct (sim.options) || ~isfield (sim.options, 'base') || size (sim.options.base, 1) < k, return, end
  s = sim.options.base{k, 2};
  yes = isnumeric (s) && numel (s) > 200;
end

% A motion of the base as a whole strains what is held by it, nothing else. Where the push strains much of the structure, and much less
% with zeros at what it strains, those places hardly move with the base: rotations, or another direction.
function found = strained (sim, k)
  found = qn.impl.finding ();
  push = sim.base.push(:, k);
  before = pulled (sim.model.K, push);
  moved = push ~= 0;
  if sum (before) < 3 || sum (before & moved) < 0.3 * sum (moved), return, end
  [few, after] = eased (sim.model.K, push, before & moved);
  [other, strained_by_it] = eased (sim.model.K, push, moved & light (diag (sim.model.M)));
  if strained_by_it < after, [few, after] = deal (other, strained_by_it); end
  at = find (few ~= push);
  if ~any (few) || isempty (at) || after > 0.5 * sum (before), return, end
  found = qn.impl.finding ('base_push', 'warning', ...
    ['base %d: its direction strains the structure at %d of %d degrees of freedom (K * push is not zero there); with zeros at %d of ' ...
     'them, such as %s, at %d. Ones belong to the displacements along the direction; rotations stay 0'], k, sum (before), numel (push), ...
    numel (at), mat2str (at(1:min (end, 4)).'), after);
end

% PUSH with zeros at the places AT, and there or at what is strained then whatever strains less; HOW_MANY places are strained by it.
function [push, how_many] = eased (k, push, at)
  whole = push;
  push(at) = 0;
  how_many = sum (pulled (k, push));
  for round = 1:3
    others = find (whole ~= 0 & (at | pulled (k, push))).';
    if numel (others) > 500, return, end
    for j = others
      was = push(j);
      push(j) = whole(j) - was;
      turned = sum (pulled (k, push));
      if turned < how_many, how_many = turned; else, push(j) = was; end
    end
  end
end

% Which masses are below the widest step in their order: inertias of rotation, most often.
function yes = light (m)
  m = full (m);
  ordered = sort (m(m > 0));
  [unused, at] = max (diff (log (ordered)));
  yes = m <= max ([0; ordered(at)]);
end

function yes = pulled (k, push)
  yes = full (abs (k * push) > 1e-6 * (abs (k) * abs (push)));
end
