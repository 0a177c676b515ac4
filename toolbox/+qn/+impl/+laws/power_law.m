% L = POWER_LAW ()  force = stiffness * x^exponent; the fields are those of qn.impl.law_list
function l = power_law ()
  parameters = {'stiffness', '<required>', 'number'
                'exponent', '<required>', 'number'};
  l = struct ('kind', 'power', 'keyword', 'Power', 'parameters', {parameters}, 'pack', @pack, 'unpack', @unpack, 'words', @words, ...
              'stiffest', @stiffest, 'softest', @softest, 'traits', [], 'stored', @stored, 'reserve', @reserve, 'check', @check, ...
              'at_rest', []);
end

function [opt, own] = pack (p, step)
  opt = [qn.impl.keyword('Power'); p.stiffness; p.exponent];
  own = zeros (0, 1);
end

function p = unpack (opt, iopt)
  p = struct ('stiffness', opt(2), 'exponent', opt(3));
end

function text = words (p)
  text = sprintf ('power law, force = %g * x^%g', p.stiffness, p.exponent);
end

function k = stiffest (p, x, state)
  k = 0;
  if p.exponent == 1
    k = abs (p.stiffness);
  elseif ~isempty (x)
    k = abs (p.stiffness * p.exponent) * max (abs (x(:))) ^ (p.exponent - 1);
  end
end

function k = softest (p)
  k = abs (p.stiffness) * (p.exponent == 1);
end

function v = stored (p, x, f, state, h)
  v = p.stiffness * x .^ (p.exponent + 1) / (p.exponent + 1);
end

function found = check (law, x, h, state)
  found = cell (0, 3);
  exponent = law.parameters.exponent;
  if exponent ~= fix (exponent) && (isempty (x) || any (x(:) < 0))
    found = {'power_negative', 'warning', ['the exponent is not a whole number: a negative displacement gives no number; give a ' ...
                                           'table instead (qn.bearing)']};
  end
end

function v = reserve (p, x, state)
  v = Inf;
  if p.stiffness >= 0 && mod (p.exponent, 2) == 1 && p.exponent > 0, v = sum (stored (p, x, [], [], [])); end
end
