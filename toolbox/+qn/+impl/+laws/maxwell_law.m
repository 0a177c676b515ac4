% L = MAXWELL_LAW ()  spring-and-damper branches and a spring beside them; the fields are those of qn.impl.law_list
function l = maxwell_law ()
  parameters = {'springs', '<required>', 'positive list'
                'dampers', '<required>', 'positive list'
                'stiffness', 0, 'number'};
  l = struct ('kind', 'maxwell', 'keyword', 'Maxw', 'parameters', {parameters}, 'pack', @pack, 'unpack', @unpack, 'words', @words, ...
              'stiffest', @stiffest, 'softest', @softest, 'traits', @traits, 'stored', @stored, 'reserve', @reserve, 'check', @check, ...
              'at_rest', @at_rest);
end

% One state a branch, the displacement s of the joint between spring and damper: s' = (k/c) (x - s). Force: sum of
% k (x - s), and the parallel spring. One sub-step a step: the module's own states then follow the current input.
function [opt, own] = pack (p, step)
  m = numel (p.springs);
  q = m + 1;
  rate = p.springs ./ p.dampers;
  weights = zeros ((q + m) * q, 1);
  weights(1:q) = [p.stiffness + sum(p.springs); -p.springs];
  input = zeros (q * m, 1);
  input(1:m) = rate;
  opt = [qn.impl.keyword('Maxw'); 0; step; 1; 0; weights; zeros((q + m) * q, 1); input; reshape(diag (-rate), [], 1); zeros(q, 1)];
  own = zeros (0, 1);
end

function p = unpack (opt, iopt)
  p = [];
  q = iopt(3);
  m = iopt(4);
  springs = -opt(5 + (2:m + 1));
  rate = opt(5 + 2 * (q + m) * q + (1:m));
  if q ~= m + 1 || any (springs <= 0) || any (rate <= 0), return, end
  p = struct ('springs', springs, 'dampers', springs ./ rate, 'stiffness', opt(6) - sum (springs));
end

function text = words (p)
  branches = sprintf (', %g N/m with %g N s/m', [p.springs, p.dampers].');
  text = sprintf ('spring of %g N/m beside Maxwell branches (%d)%s', p.stiffness, numel (p.springs), branches);
end

function t = traits (p)
  t = struct ('rows', 1, 'forces', 1, 'width', numel (p.springs) + 1, 'inner', numel (p.springs), 'pages', 3, 'memory', true);
end

function k = stiffest (p, x, state)
  k = p.stiffness + sum (p.springs);
end

function k = softest (p)
  k = p.stiffness + sum (p.springs);
end

function v = stored (p, x, f, state, h)
  v = p.stiffness * x .^ 2 / 2;
  for j = 1:numel (p.springs)
    r = h * p.springs(j) / p.dampers(j);
    s = filter ([0, r], [1, r - 1], x);
    v = v + p.springs(j) * (x - s) .^ 2 / 2;
  end
end

function found = check (law, x, h, state)
  found = cell (0, 3);
  p = law.parameters;
  fast = h * max (p.springs ./ p.dampers);
  if fast >= 2
    found = {'maxwell_unstable', 'error', ...
             sprintf(['its shortest relaxation time is %g s, and the step %g s: its state grows without bound; take at most ' ...
                      '%.2g s'], h / fast, h, h / fast / 10)};
  elseif fast > 0.2
    found = {'maxwell_coarse', 'warning', ...
             sprintf('its shortest relaxation time is only %.1f steps; take %.2g s or less', 1 / fast, h / fast / 10)};
  end
end

% The dampers give way: what is left is the spring beside them.
function law = at_rest (p)
  law = qn.law ('power', 'stiffness', p.stiffness, 'exponent', 1);
end

function v = reserve (p, x, state)
  v = p.stiffness * x ^ 2 / 2 + sum (p.springs .* (x - state) .^ 2) / 2;
  if p.stiffness < 0, v = Inf; end
end
