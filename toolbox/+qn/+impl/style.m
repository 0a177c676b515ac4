% STYLE (HEADING, ACROSS, UP, NAMES)  what every panel has in common: frame, grid, fonts, labels, legend, a little room above
function style (heading, across, up, names)
  ax = gca ();
  set (ax, 'fontsize', 11, 'box', 'on', 'xgrid', 'on', 'ygrid', 'on', 'gridlinestyle', '-', 'layer', 'bottom');
  try
    set (ax, 'gridcolor', [0.85 0.85 0.85]);
  catch
    % Older hosts have one colour for the grid.
  end
  title (heading, 'fontsize', 12, 'fontweight', 'bold', 'interpreter', 'none');
  xlabel (across, 'fontsize', 12, 'interpreter', 'none');
  ylabel (up, 'fontsize', 12, 'interpreter', 'none');
  if numel (names) > 1
    limits = get (ax, 'ylim');
    set (ax, 'ylim', [limits(1), limits(2) + 0.15 * diff(limits)]);
    legend (names, 'location', 'north', 'orientation', 'horizontal', 'interpreter', 'none');
    legend ('boxoff');
  end
end
