% PLOT_GROUP (OUT, GROUP, VARIANT, SIZE_NAME, UNIT, RECORDS)  time for a piece of work against size, a line a program
function plot_group (out, group, variant, size_name, unit, records)
  t = select (records, group, variant);
  if isempty (t), return; end
  h = figure ('visible', 'off');
  programs = unique ({t.program}, 'stable');
  marks = {'o-', 's-', 'd-', '^-', 'v-', 'x-', '+-', '*-', 'p-'};
  for p = 1:numel (programs)
    own = t(strcmp ({t.program}, programs{p}));
    loglog ([own.size], 1e9 * [own.seconds] ./ [own.units], marks{mod(p - 1, numel (marks)) + 1}, 'linewidth', 1.5);
    hold on
  end
  grid on
  xlabel (size_name);
  ylabel (unit);
  title (sprintf ('%s: %s', group, variant));
  legend (programs, 'location', 'eastoutside');
  print (h, fullfile (out, [strrep(sprintf ('%s_%s', group, variant), ' ', '_') '.png']), '-dpng', '-S900,500');
  close (h);
end
