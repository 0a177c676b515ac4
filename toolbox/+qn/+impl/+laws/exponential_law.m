% L = EXPONENTIAL_LAW ()  force = scale * base^x; the fields are those of qn.impl.law_list
function l = exponential_law ()
  parameters = {'scale', '<required>', 'number'
                'base', '<required>', 'number'};
  l = struct ('kind', 'exponential', 'keyword', 'Expon', 'parameters', {parameters}, 'pack', @pack, 'unpack', @unpack, 'words', @words, ...
              'stiffest', @stiffest, 'traits', [], 'stored', @stored, 'reserve', @reserve, 'check', [], 'at_rest', []);
end

function [opt, own] = pack (p, step)
  opt = [qn.impl.keyword('Expon'); p.scale; p.base];
  own = zeros (0, 1);
end

function p = unpack (opt, iopt)
  p = struct ('scale', opt(2), 'base', opt(3));
end

function text = words (p)
  text = sprintf ('exponential law, force = %g * %g^x', p.scale, p.base);
end

function k = stiffest (p, x, state)
  k = 0;
  if ~isempty (x) && p.base > 0, k = max (abs (p.scale * log (p.base) * p.base .^ x(:))); end
end

function v = stored (p, x, f, state, h)
  if p.base == 1
    v = p.scale * x;
  else
    v = p.scale * p.base .^ x / log (p.base);
  end
end

function v = reserve (p, x, state)
  v = Inf;
  if p.scale >= 0 && p.base > 1, v = sum (stored (p, x, [], [], [])); end
end
