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

% The two branches grow like Dahl's law; the third force follows the slope of its table.
function k = stiffest (p, x, state)
  third = [];
  if ~isempty (x), third = x(3, :); end
  table = qn.impl.law_of ('table');
  slope = table.stiffest (struct ('displacement', p.displacement, 'force', p.normal), third, []);
  k = abs (p.stiffness) + max (slope, max (abs (met (p, p.growth, third))) * 2 ^ max (p.exponent, 0));
end

% The table is one of the third displacement.
function found = check (law, x, h, state)
  p = law.parameters;
  if ~isempty (x), x = x(3, :); end
  normal = met (p, p.normal, x);
  found = qn.impl.beyond_table (law, x);
  if p.stiffness ~= 0
    found(end + 1, :) = {'clima2_stiffness', 'warning', ...
                         sprintf(['its stiffness of %g N/m times the displacement is taken off the branches anew at each step and ' ...
                                  'adds up: the forces depend on the number of steps. Give 0, and a spring as an element of its own'], ...
                                 p.stiffness)};
  end
  if min (normal) < 0
    found(end + 1, :) = {'clima2_normal', 'warning', ...
                         sprintf(['its normal force falls to %g N: below zero the slip force changes its sign and the branches push ' ...
                                  'as hard as they can. Let the table end at 0, with a knot beyond'], min (normal))};
  end
end

% The values of a table column at its knots, where displacements x are known at their ends and at the knots between them.
function values = met (p, values, x)
  if isempty (x), return, end
  at = [min(x); max(x); p.displacement(p.displacement > min (x) & p.displacement < max (x))];
  values = qn.force (qn.law ('table', 'displacement', p.displacement, 'force', values), at);
end
