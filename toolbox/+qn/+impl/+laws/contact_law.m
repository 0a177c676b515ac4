% L = CONTACT_LAW ()  one-sided stop, stiff and lossy after Hunt and Crossley; the fields are those of qn.impl.law_list
function l = contact_law ()
  parameters = {'stiffness', '<required>', 'number'
                'exponent', 1.5, 'positive'
                'damping', 0, 'number'
                'gap', 0, 'number'
                'side', 1, 'sign'};
  l = struct ('kind', 'contact', 'keyword', 'Contact', 'parameters', {parameters}, 'pack', @pack, 'unpack', @unpack, 'words', @words, ...
              'stiffest', @stiffest, 'viscous', @viscous, 'traits', @traits, 'stored', @stored, 'reserve', @reserve, 'check', @check, ...
              'reach', @reach, 'at_force', @at_force);
end

function [opt, own] = pack (p, step)
  opt = [qn.impl.keyword('Contact'); p.stiffness; p.exponent; p.damping; p.gap; p.side];
  own = zeros (0, 1);
end

function p = unpack (opt, iopt)
  p = struct ('stiffness', opt(2), 'exponent', opt(3), 'damping', opt(4), 'gap', opt(5), 'side', 1 - 2 * (opt(6) < 0));
end

function text = words (p)
  sides = {'negative', 'positive'};
  text = sprintf ('contact, force = %g * d^%g * (1 + %g * d'') beyond a gap of %g m on the %s side', p.stiffness, p.exponent, p.damping, ...
                  p.gap, sides{1 + (p.side > 0)});
end

function t = traits (p)
  t = struct ('rates', true);
end

function d = depths (p, x)
  d = max (0, p.side * x(:) - p.gap);
end

function k = stiffest (p, x, state)
  k = 0;
  if p.exponent == 1
    k = abs (p.stiffness);
  elseif ~isempty (x)
    d = depths (p, x);
    d = d(d > 0);
    if ~isempty (d), k = abs (p.stiffness * p.exponent) * max (d .^ (p.exponent - 1)); end
  end
end

function c = viscous (p, x, f)
  c = 0;
  if ~isempty (x), c = abs (p.stiffness * p.damping) * max ([0; depths(p, x)]) ^ p.exponent; end
end

function v = stored (p, x, f, state, h)
  v = p.stiffness * max (0, p.side * x - p.gap) .^ (p.exponent + 1) / (p.exponent + 1);
end

function v = reserve (p, x, state)
  v = Inf;
  if p.stiffness >= 0 && p.damping >= 0, v = sum (stored (p, x, [], [], [])); end
end

function found = check (law, x, h, state)
  found = cell (0, 3);
  p = law.parameters;
  if p.gap < 0
    text = sprintf (['it pushes with %g N at zero displacement: a negative gap is a preload. A run that starts at 0 starts with that ' ...
                     'force; for a start at rest give ''q0'' from qn.static'], qn.force (law, 0, 0));
    found = {'preload', 'note', text};
  end
  if p.stiffness < 0 || p.damping < 0
    found(end + 1, :) = {'damper_feeds', 'warning', sprintf(['its stiffness of %g and damping of %g s/m are meant to be above zero: ' ...
                         'one below feeds the motion'], p.stiffness, p.damping)};
  end
end

function r = reach (p)
  r = Inf;
  if p.gap > 0, r = p.gap; end
end

% As if the depth alone had made the force, which a compressing contact exceeds.
function x = at_force (p, f)
  f = p.side * f;
  x = p.side * (p.gap + (f(f > 0) / abs (p.stiffness)) .^ (1 / p.exponent));
end
