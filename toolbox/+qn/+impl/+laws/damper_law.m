% L = DAMPER_LAW ()  force = damping * |v|^exponent with the sign of v; the fields are those of qn.impl.law_list
function l = damper_law ()
  parameters = {'damping', '<required>', 'number'
                'exponent', 1, 'number'};
  l = struct ('kind', 'damper', 'keyword', 'Damper', 'parameters', {parameters}, 'pack', @pack, 'unpack', @unpack, 'words', @words, ...
              'stiffest', @stiffest, 'viscous', @viscous, 'traits', @traits, 'stored', [], 'reserve', @reserve, 'check', @check, ...
              'at_rest', []);
end

function [opt, own] = pack (p, step)
  opt = [qn.impl.keyword('Damper'); p.damping; p.exponent];
  own = zeros (0, 1);
end

function p = unpack (opt, iopt)
  p = struct ('damping', opt(2), 'exponent', opt(3));
end

function text = words (p)
  text = sprintf ('damper, force = %g * |v|^%g along v', p.damping, p.exponent);
end

function t = traits (p)
  t = struct ('rates', true);
end

function k = stiffest (p, x, state)
  k = 0;
end

% At the greatest force that was met: from there on a damper with an exponent above 1 is softer, one below 1 steeper, near rest without bound.
function c = viscous (p, x, f)
  c = 0;
  if p.exponent == 1
    c = abs (p.damping);
  elseif p.exponent > 0 && p.damping ~= 0 && any (f(:))
    most = max (abs (f(:)));
    c = p.exponent * most * (most / abs (p.damping)) ^ (-1 / p.exponent);
  end
end

function v = reserve (p, x, state)
  v = 0;
  if p.damping < 0, v = Inf; end
end

function found = check (law, x, h, state)
  found = cell (0, 3);
  if law.parameters.damping < 0
    found = {'damper_feeds', 'warning', sprintf('its damping of %g is below zero: it feeds the motion', law.parameters.damping)};
  end
end
