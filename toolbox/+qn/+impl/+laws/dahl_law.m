% L = DAHL_LAW ()  friction that follows a differential equation; the fields are those of qn.impl.law_list
function l = dahl_law ()
  parameters = {'stiffness', '<required>', 'number'
                'slip', '<required>', 'positive'
                'exponent', 1, 'number'};
  l = struct ('kind', 'dahl', 'keyword', 'DahlC', 'parameters', {parameters}, 'pack', @pack, 'unpack', @unpack, 'words', @words, ...
              'stiffest', @stiffest, 'traits', @traits, 'stored', @stored, 'reserve', @reserve, 'check', [], 'at_rest', []);
end

% The slip force is the product of two parameters; the second one stays 1.
function [opt, own] = pack (p, step)
  opt = [qn.impl.keyword('DahlC'); 0; step; p.stiffness; p.exponent; p.slip; 1];
  own = zeros (0, 1);
end

function p = unpack (opt, iopt)
  p = struct ('stiffness', opt(4), 'exponent', opt(5), 'slip', opt(6) * opt(7));
end

function text = words (p)
  text = sprintf ('Dahl friction, %g N/m, slip force %g N, exponent %g', p.stiffness, p.slip, p.exponent);
end

function t = traits (p)
  t = struct ('rows', 1, 'forces', 1, 'width', 2, 'states', 1, 'pages', 2, 'memory', true);
end

% Where the motion turns with the force F it grows by stiffness * (1 + |F| / slip)^exponent.
function k = stiffest (p, x, state)
  share = 1;
  if ~isempty (state), share = min (1, max (abs (state(:))) / p.slip); end
  k = p.stiffness * (1 + share) ^ max (p.exponent, 0);
end

% What it gives back when it is unloaded along its first stiffness.
function v = stored (p, x, f, state, h)
  v = f .^ 2 / (2 * p.stiffness);
end

function v = reserve (p, x, state)
  v = state ^ 2 / (2 * p.stiffness);
  if p.stiffness <= 0, v = Inf; end
end
