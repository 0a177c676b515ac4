% STYLE (HEADING, ACROSS, UP, NAMES)  what every panel has in common: frame, grid, fonts, labels, legend, a little room above
function style (heading, across, up, names)
  ax = gca ();
  set (ax, 'fontsize', 11, 'box', 'on', 'xgrid', 'on', 'ygrid', 'on', 'gridlinestyle', '-', 'layer', 'bottom');
  try
    set (ax, 'gridcolor', [0.85 0.85 0.85]);
  catch
    % Older hosts have one colour for the grid.
  end
  [width, height] = room (ax);
  title (heading, 'fontsize', fitting (heading, width), 'fontweight', 'bold', 'interpreter', 'none');
  xlabel (across, 'fontsize', fitting (across, width), 'interpreter', 'none');
  ylabel (up, 'fontsize', fitting (up, height), 'interpreter', 'none');
  if numel (names) > 1
    limits = get (ax, 'ylim');
    set (ax, 'ylim', [limits(1), limits(2) + 0.15 * diff(limits)]);
    legend (names, 'location', 'north', 'orientation', 'horizontal', 'interpreter', 'none');
    legend ('boxoff');
  end
end

% Pixels that a text along the axes may take: the axes and a little of the room around them.
function [width, height] = room (ax)
  page = get (gcf (), 'position');
  place = get (ax, 'position');
  width = place(3) * page(3) + 60;
  height = place(4) * page(4) + 60;
end

% Size of the letters [points], 12 where there is room; a letter is about as wide as 0.9 times its size in pixels.
function size_of = fitting (text, pixels)
  size_of = min (12, max (6, floor (pixels / (0.9 * max (numel (text), 1)))));
end
