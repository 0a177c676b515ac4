% L = CLIMA2_LAW ()  two Dahl branches under a force normal to them; the fields are those of qn.impl.law_list
function l = clima2_law ()
  parameters = {'displacement', '<required>', 'ascending list'
                'normal', '<required>', 'list'
                'growth', '<required>', 'list'
                'friction', '<required>', 'positive'
                'exponent', 1, 'number'
                'stiffness', 0, 'number'
                'offset', 0, 'number'};
  l = struct ('kind', 'clima2', 'keyword', 'Clima2', 'parameters', {parameters}, 'pack', @pack, 'unpack', @unpack, 'words', @words, ...
              'stiffest', @stiffest, 'traits', @traits, 'stored', [], 'reserve', [], 'check', @check, 'at_rest', []);
end

function [opt, own] = pack (p, step)
  opt = [qn.impl.keyword('Clima2'); 0; step; p.stiffness; p.exponent; p.friction; p.offset; zeros(3, 1); p.displacement; p.normal; ...
         p.growth];
  own = [10; 7; numel(p.displacement); 2];
end

function p = unpack (opt, iopt)
  t = qn.impl.table_of (opt, iopt, 2);
  p = struct ('stiffness', opt(4), 'exponent', opt(5), 'friction', opt(6), 'offset', opt(7), 'displacement', t(:, 1), ...
              'normal', t(:, 2), 'growth', t(:, 3));
end

function text = words (p)
  text = sprintf (['two Dahl branches, friction %g, exponent %g, %g N/m taken off; slip and stiffness from a table of %d knots ' ...
                   'from %g to %g m (%g to %g N, %g to %g N/m), offset %g N'], p.friction, p.exponent, p.stiffness, ...
                  numel (p.displacement), p.displacement([1 end]), min (p.normal), max (p.normal), min (p.growth), ...
                  max (p.growth), p.offset);
end

function t = traits (p)
  t = struct ('rows', 3, 'forces', 3, 'width', 5, 'states', 2, 'pages', 2, 'memory', true);
end

function k = stiffest (p, x)
  k = abs (p.stiffness) + max (abs (p.growth)) * 2 ^ max (p.exponent, 0);
end

% The table is one of the third displacement.
function found = check (law, x, h)
  if ~isempty (x), x = x(3, :); end
  found = qn.impl.beyond_table (law, x);
end
