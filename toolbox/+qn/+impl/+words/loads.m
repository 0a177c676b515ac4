% CELLS = LOADS (SIM)  one row a load: number, where it acts and what it is, least, greatest and root mean square of its values, their unit
%
% Of a load at one degree of freedom the values are forces there; of others they are the signal, by which the shape is multiplied.
function cells = loads (sim)
  cells = cell (0, 6);
  base = [];
  if isfield (sim, 'base') && ~isempty (sim.base), base = sim.base; end
  for k = 1:size (sim.loads, 1)
    y = sim.loads(k, isfinite (sim.loads(k, :)));
    if isempty (y), y = 0; end
    unit = '';
    if ~isempty (base) && any (base.loads == k)
      unit = 'm/s^2';
      push = base.push(:, base.loads == k);
      where = sprintf ('motion of the base, which %s', ...
                       qn.impl.words.count (nnz (push), 'degree of freedom follows', 'degrees of freedom follow'));
    else
      [where, name, factor] = qn.impl.words.place (sim.model, sim.shapes(:, k).');
      if ~isempty (name), [where, unit, y] = deal (name, 'N', factor * y); end
      where = ['at ' strrep(where, 'a row of its own', 'several places, by a shape of its own')];
    end
    cells(k, :) = {k, [where, turning(sim, k)], min(y), max(y), sqrt(mean (y .^ 2)), unit};
  end
end

% What an unbalance adds.
function text = turning (sim, k)
  text = '';
  if ~isfield (sim, 'options') || ~isfield (sim.options, 'load') || k > size (sim.options.load, 1), return, end
  what = qn.impl.rotor.unbalance_of (sim.options.load{k, 2});
  if isempty (what), return, end
  motion = what.motion (sim.time);
  text = sprintf (', unbalance at %s', qn.impl.words.span ('%.6g', motion(2, :), 'rad/s'));
end
