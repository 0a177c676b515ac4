% L = RADIAL_LAW ()  contact and friction of a round shaft in a round clearance; the fields are those of qn.impl.law_list
function l = radial_law ()
  parameters = {'gap', '<required>', 'not negative'
                'stiffness', '<required>', 'not negative'
                'exponent', 1, 'positive'
                'damping', 0, 'not negative'
                'friction', 0, 'not negative'
                'onset', 0.01, 'positive'
                'radius', 0, 'number'
                'speed', 0, 'number'
                'x0', 0, 'number'
                'y0', 0, 'number'};
  l = struct ('kind', 'radial', 'keyword', 'Radial', 'parameters', {parameters}, 'pack', @pack, 'unpack', @unpack, 'words', @words, ...
              'stiffest', @stiffest, 'viscous', @viscous, 'traits', @traits, 'stored', @stored, 'reserve', @reserve, ...
              'check', @check, 'reach', @reach);
end

function [opt, own] = pack (p, step)
  opt = [qn.impl.keyword('Radial'); p.gap; p.stiffness; p.exponent; p.damping; p.friction; p.onset; p.radius; p.speed; p.x0; p.y0];
  own = zeros (0, 1);
end

function p = unpack (opt, iopt)
  p = struct ('gap', opt(2), 'stiffness', opt(3), 'exponent', opt(4), 'damping', opt(5), 'friction', opt(6), 'onset', opt(7), ...
              'radius', opt(8), 'speed', opt(9), 'x0', opt(10), 'y0', opt(11));
end

function text = words (p)
  text = sprintf ('round contact behind %g m, force = %g * depth^%g', p.gap, p.stiffness, p.exponent);
  if p.damping ~= 0, text = sprintf ('%s * (1 + %g * its rate)', text, p.damping); end
  if p.friction ~= 0
    text = sprintf ('%s, friction %g (from %g m/s on), shaft of radius %g m at %g rad/s', text, p.friction, p.onset, p.radius, p.speed);
  end
  if any ([p.x0, p.y0] ~= 0), text = sprintf ('%s, centre at %g, %g m', text, p.x0, p.y0); end
end

function t = traits (p)
  t = struct ('rows', 2, 'forces', 2, 'width', 2, 'rates', true);
end

% Slope of the force along the radius, and force over radius across it, with friction at right angles to both.
function k = stiffest (p, x, state)
  k = 0;
  d = [];
  if ~isempty (x), d = away (p, x) - p.gap; end
  d = d(d > 0);
  if isempty (x) && p.exponent == 1
    k = p.stiffness * sqrt (1 + p.friction ^ 2);
  elseif ~isempty (d)
    % With an exponent below 1 it is stiffest where it is least deep.
    k = max (p.exponent, 1) * p.stiffness * max (d .^ (p.exponent - 1)) * sqrt (1 + p.friction ^ 2);
  end
end

% Damping of the contact along the radius, and across it friction where the surfaces do not slide.
function c = viscous (p, x, f)
  c = 0;
  d = deepest (p, x);
  if any (d > 0)
    c = p.stiffness * d ^ p.exponent * sqrt (p.damping ^ 2 * (1 + p.friction ^ 2) + (p.friction / p.onset) ^ 2);
  end
end

function d = deepest (p, x)
  d = [];
  if ~isempty (x), d = max (0, max (away (p, x)) - p.gap); end
end

function v = stored (p, x, f, state, h)
  d = max (0, away (p, x) - p.gap);
  v = p.stiffness * d .^ (p.exponent + 1) / (p.exponent + 1);
end

% A shaft that turns can be fed by its rubbing.
function v = reserve (p, x, state)
  v = Inf;
  if p.friction == 0 || p.radius * p.speed == 0, v = stored (p, x, [], [], []); end
end

% At rest in the middle it should not press.
function found = check (law, x, h, state)
  found = cell (0, 3);
  p = law.parameters;
  if hypot (p.x0, p.y0) > p.gap && p.stiffness ~= 0
    f = qn.force (law, [0; 0], [0; 0]);
    found = {'preload', 'note', ...
             sprintf(['it pushes with %g N at zero displacement: its centre is %g m away, beyond the gap of %g m. For a start at rest ' ...
                      'give ''q0'' from qn.static; lengths are in m'], hypot (f(1), f(2)), hypot (p.x0, p.y0), p.gap)};
  end
end

function r = away (p, x)
  r = hypot (x(1, :) - p.x0, x(2, :) - p.y0);
end

function r = reach (p)
  r = max (0, p.gap - hypot (p.x0, p.y0));
end
