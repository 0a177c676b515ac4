% LABELS (HEADING, ACROSS, UP, NAMES, WHERE)  the look of qn's plots for axes that were drawn by hand; WHERE is the legend's place,
% 'north' for one in a row
function labels (heading, across, up, names, where)
  qn.impl.style (heading, across, up, {});
  if nargin > 3
    legend (names, 'location', where, 'interpreter', 'none', 'fontsize', 10);
    if strcmp (where, 'north'), legend ('orientation', 'horizontal'); end
    legend ('boxoff');
  end
end
