% L = JOURNAL_LAW ()  oil film of a short plain bearing; the fields are those of qn.impl.law_list
function l = journal_law ()
  parameters = {'viscosity', '<required>', 'positive'
                'length', '<required>', 'positive'
                'radius', '<required>', 'positive'
                'clearance', '<required>', 'positive'
                'speed', '<required>', 'number'
                'limit', 0.99, 'fraction'
                'x0', 0, 'number'
                'y0', 0, 'number'};
  l = struct ('kind', 'journal', 'keyword', 'Journal', 'parameters', {parameters}, 'pack', @pack, 'unpack', @unpack, 'words', @words, ...
              'stiffest', @stiffest, 'viscous', @viscous, 'traits', @traits, 'reserve', @reserve, 'check', @check);
end

% The last value is the module's record of the greatest eccentricity.
function [opt, own] = pack (p, step)
  opt = [qn.impl.keyword('Journal'); p.viscosity; p.length; p.radius; p.clearance; p.speed; p.limit; p.x0; p.y0; 0];
  own = zeros (0, 1);
end

function p = unpack (opt, iopt)
  p = struct ('viscosity', opt(2), 'length', opt(3), 'radius', opt(4), 'clearance', opt(5), 'speed', opt(6), 'limit', opt(7), ...
              'x0', opt(8), 'y0', opt(9));
end

function text = words (p)
  text = sprintf ('plain bearing, length %g m, radius %g m, clearance %g m, oil of %g Pa s, %g rad/s, film up to an eccentricity of %g', ...
                  p.length, p.radius, p.clearance, p.viscosity, p.speed, p.limit);
  if any ([p.x0, p.y0] ~= 0), text = sprintf ('%s, centre at %g, %g m', text, p.x0, p.y0); end
end

function t = traits (p)
  t = struct ('rows', 2, 'forces', 2, 'width', 2, 'rates', true, 'record', 10);
end

% Norm of the slopes of the film at rest, 2 e^2/(1-e^2)^2 along the line of centres and pi e/(2 (1-e^2)^1.5) across it.
function k = stiffest (p, x, state)
  e = min (p.limit, eccentricity (p, x));
  s = 1 - e ^ 2;
  slopes = [4 * e * (1 + e ^ 2) / s ^ 3, pi / 2 / s ^ 1.5; pi / 2 * (1 + 2 * e ^ 2) / s ^ 2.5, 2 * e / s ^ 2];
  k = abs (p.speed) * unit (p) / 2 * norm (slopes, 'fro');
end

% Pressed together along the line of centres.
function c = viscous (p, x, f)
  e = min (p.limit, eccentricity (p, x));
  s = 1 - e ^ 2;
  c = unit (p) * (3 * e + atan2 (sqrt (s), -e) / sqrt (s) * (s + 3 * e ^ 2)) / s ^ 2;
end

% mu R (L/c)^3 [N s/m]
function u = unit (p)
  u = p.viscosity * p.radius * (p.length / p.clearance) ^ 3;
end

% The greatest; 0 where no displacements are known.
function e = eccentricity (p, x)
  e = 0;
  if ~isempty (x), e = max (hypot (x(1, :) - p.x0, x(2, :) - p.y0)) / p.clearance; end
end

% A shaft that turns feeds the motion.
function v = reserve (p, x, state)
  v = Inf;
  if p.speed == 0, v = 0; end
end

% STATE is the greatest eccentricity that the module has met, at any step.
function found = check (law, x, h, state)
  found = cell (0, 3);
  p = law.parameters;
  most = max ([state(:); eccentricity(p, x)]);
  if most > p.limit
    level = 'warning';
    if most >= 1, level = 'error'; end
    found = {'film_left', level, ...
             sprintf(['its journal came to an eccentricity of %.3g, beyond the %g up to which the film is that of the formula; there ' ...
                      'its force is that of %g: from then on the result is no bearing''s. Look at load, clearance and viscosity, ' ...
                      'start from qn.static, or put a contact behind the film (qn.radial)'], most, p.limit, p.limit)};
  end
  ratio = p.clearance / p.radius;
  if ratio < 1e-4 || ratio > 1e-2
    found(end + 1, :) = {'film_ratio', 'warning', ...
                         sprintf(['its clearance is %.2g of the radius of its journal, where bearings have 1e-4 to 1e-2: are both in ' ...
                                  'm, and is the clearance that of the radius?'], ratio)};
  end
  slender = p.length / (2 * p.radius);
  if slender > 0.5
    level = 'note';
    if slender > 1, level = 'warning'; end
    found(end + 1, :) = {'film_long', level, ...
                         sprintf(['its length is %.2g of its diameter: the formula is that of short bearings, good up to about 0.5; a ' ...
                                  'longer one carries less than this says'], slender)};
  end
end
