% L = BOUCWEN_LAW ()  smooth hysteresis after Bouc and Wen; the fields are those of qn.impl.law_list
function l = boucwen_law ()
  parameters = {'stiffness', '<required>', 'number'
                'ratio', '<required>', 'number'
                'beta', '<required>', 'number'
                'gamma', '<required>', 'number'
                'exponent', 1, 'positive'
                'A', 1, 'positive'};
  l = struct ('kind', 'boucwen', 'keyword', 'BoucWen', 'parameters', {parameters}, 'pack', @pack, 'unpack', @unpack, 'words', @words, ...
              'stiffest', @stiffest, 'traits', @traits, 'stored', @stored, 'reserve', @reserve, 'check', @check);
end

function [opt, own] = pack (p, step)
  opt = [qn.impl.keyword('BoucWen'); 0; step; p.stiffness; p.ratio; p.A; p.beta; p.gamma; p.exponent];
  own = zeros (0, 1);
end

function p = unpack (opt, iopt)
  p = struct ('stiffness', opt(4), 'ratio', opt(5), 'beta', opt(7), 'gamma', opt(8), 'exponent', opt(9), 'A', opt(6));
end

function text = words (p)
  text = sprintf ('Bouc-Wen hysteresis, %g N/m, %g of it elastic, A %g, beta %g, gamma %g, exponent %g', p.stiffness, p.ratio, p.A, ...
                  p.beta, p.gamma, p.exponent);
end

% Its memory: z, and the displacement at the last evaluation.
function t = traits (p)
  t = struct ('rows', 1, 'forces', 1, 'width', 3, 'states', 2, 'memory', true);
end

% dz/dx is A at z = 0 and, against the motion, A + (beta - gamma) |z|^n, where |z| stays below (A / (beta + gamma))^(1/n).
function k = stiffest (p, x, state)
  steepest = p.A;
  if p.beta + p.gamma > 0
    steepest = p.A * max (1, 2 * p.beta / (p.beta + p.gamma));
  elseif ~isempty (state)
    steepest = p.A + (abs (p.beta) + abs (p.gamma)) * max (abs (state(1, :))) ^ p.exponent;
  end
  k = abs (p.stiffness) * (abs (p.ratio) + abs (1 - p.ratio) * steepest);
end

% With this energy no motion gives back what was lost, if beta is at least |gamma| (Erlicher and Point, 2004).
function v = stored (p, x, f, state, h)
  v = p.stiffness * (p.ratio * x .^ 2 + (1 - p.ratio) * state(1, :) .^ 2 / p.A) / 2;
end

function v = reserve (p, x, state)
  v = Inf;
  if p.stiffness >= 0 && p.ratio >= 0 && p.ratio <= 1 && p.beta >= abs (p.gamma), v = stored (p, x, [], state(:), []); end
end

function found = check (law, x, h, state)
  found = cell (0, 3);
  p = law.parameters;
  if p.beta + p.gamma <= 0
    found = {'boucwen_feeds', 'warning', sprintf('beta %g and gamma %g give it no greatest force: beta + gamma is not above 0', ...
                                                 p.beta, p.gamma)};
  elseif p.beta < abs (p.gamma)
    found = {'boucwen_feeds', 'warning', sprintf('beta %g is below |gamma| %g: some of its loops give energy to the structure', ...
                                                 p.beta, abs (p.gamma))};
  end
  if p.exponent < 1 && p.beta + p.gamma > 0, found = [found; kinked(p)]; end
end

% Where z changes its sign its slope has a kink, which the rule of the module steps across. Found with 6400 increments through 0 for each exponent
% here and for beta/(beta + gamma) of 0.5, 0.7, 1 and 2, as parts of the limit and rounded up by a quarter or more.
function found = kinked (p)
  exponent = [0 0.05 0.1 0.2 0.35 0.5 0.7 0.9];
  worst = [1 1 0.95 0.6 0.15 0.035 0.015 0.005];
  tenth = [1 0.15 0.13 0.075 0.03 0.0075 0.0025 0.001];
  k = find (exponent <= p.exponent, 1, 'last');
  limit = (p.A / (p.beta + p.gamma)) ^ (1 / p.exponent);
  force = abs (p.stiffness * (1 - p.ratio)) * limit;
  level = 'note';
  if worst(k) > 0.05, level = 'warning'; end
  text = ['exponent %g is below 1: in a step in which its force changes its sign it comes out wrong by up to %.2g N of %.2g N, ' ...
          'where it moves by about %.2g m in a step; by up to %.2g N where that is a tenth of it'];
  found = {'boucwen_kink', level, sprintf(text, p.exponent, worst(k) * force, force, limit / p.A, tenth(k) * force)};
end
