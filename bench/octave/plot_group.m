% PLOT_GROUP (OUT, GROUP, VARIANT, SIZE_NAME, UNIT, RECORDS)  time for a piece of work against size, a line a program
function plot_group (out, group, variant, size_name, unit, records)
  t = select (records, group, variant);
  if isempty (t), return; end
  h = figure ('visible', 'off');
  programs = unique ({t.program}, 'stable');
  colours = 0.85 * hsv (numel (programs));
  drawn = zeros (1, numel (programs));
  marks = {'o-', 's-', 'd-', '^-', 'v-', 'x-', '+-', '*-', 'p-'};
  for p = 1:numel (programs)
    own = t(strcmp ({t.program}, programs{p}));
    drawn(p) = loglog ([own.size], 1e9 * [own.seconds] ./ [own.units], marks{mod(p - 1, numel (marks)) + 1}, 'linewidth', 1.5, ...
                       'color', colours(p, :));
    hold on
  end
  grid on
  xlabel (size_name);
  ylabel (unit);
  title (sprintf ('%s: %s', group, variant));
  label_lines (drawn, programs);
  print (h, fullfile (out, [regexprep(sprintf ('%s_%s', group, variant), '[ ,]+', '_') '.png']), '-dpng', '-S900,500');
  close (h);
end
