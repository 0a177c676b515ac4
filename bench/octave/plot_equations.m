% PLOT_EQUATIONS (OUT, RECORDS)  time to solution against error, a picture an equation
function plot_equations (out, records)
  [names, programs] = equation_names (records);
  marks = {'o-', 's-', 'd-', '^-', 'v-', 'x-', '+-', '*-', 'p-'};
  for k = 1:numel (names)
    h = figure ('visible', 'off');
    shown = {};
    drawn = [];
    colours = 0.85 * hsv (numel (programs));
    for p = 1:numel (programs)
      [errors, seconds] = equation_points (records, names{k}, programs{p});
      if isempty (errors), continue; end
      [errors, order] = sort (errors);
      drawn(end + 1) = loglog (errors, 1e3 * seconds(order), marks{mod(p - 1, numel (marks)) + 1}, 'linewidth', 1.5, 'color', colours(p, :));
      hold on
      shown{end + 1} = programs{p};
    end
    grid on
    xlabel ('error');
    ylabel ('ms');
    title (names{k});
    label_lines (drawn, shown);
    print (h, fullfile (out, [strrep(names{k}, ' ', '_') '.png']), '-dpng', '-S900,500');
    close (h);
  end
end
