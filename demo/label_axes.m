% LABEL_AXES (POSITION, HEADING, ACROSS, UP, NAMES, PLACE)  what every panel of the pictures has in common
%
% POSITION is [left bottom width height] of the panel's frame, as fractions of the picture.
function label_axes (position, heading, across, up, names, place)
  set (gca (), 'position', position, 'fontsize', 11, 'box', 'on', 'xgrid', 'on', 'ygrid', 'on', ...
       'gridcolor', [0.85 0.85 0.85], 'gridlinestyle', '-', 'layer', 'bottom');
  title (heading, 'fontsize', 12, 'fontweight', 'bold');
  xlabel (across, 'fontsize', 12);
  ylabel (up, 'fontsize', 12);
  if ~isempty (names)
    legend (names, 'location', place, 'orientation', 'horizontal', 'fontsize', 11);
    legend ('boxoff');
  end
end
