% QN.PLOT.PANEL  one of several axes on a page, with room for titles and labels
%
% Purpose
%   Like subplot, without labels that run into the title below.
%
% Calls
%   AX = qn.plot.panel (ROWS, COLUMNS, K)
%
% Input
%   ROWS, COLUMNS  how the page is divided
%   K              which panel, from 1, row by row; [first last] spans panels of one row
%
% Output
%   AX             handle of the axes, now the current ones
%
% Errors
%   qn:input  there is no such panel, or a number is not whole
%
% Example
%   fig = qn.plot.page ();
%   qn.plot.panel (2, 2, [1 2]);
%   plot (0:10);
%   qn.plot.panel (2, 2, 3);
%   plot (10:-1:0);
%   close (fig);
%
% See also qn.plot.page, qn.plot.series
function ax = panel (rows, columns, k)
  who = 'qn.plot.panel';
  if nargin < 3, error ('qn:input', '%s: rows, columns and the number of the panel expected; see help %s', who, who); end
  rows = qn.impl.count (who, 'ROWS', rows);
  columns = qn.impl.count (who, 'COLUMNS', columns);
  k = qn.impl.numbers (who, 'K', k, [], 'list', 'whole', 'ascending');
  if k(1) < 1 || k(end) > rows * columns
    error ('qn:input', '%s: "K" is %s; panels are numbered from 1 to %d', who, mat2str (k), rows * columns);
  end
  row = ceil (k(1) / columns);
  first = k(1) - (row - 1) * columns;
  last = k(end) - (row - 1) * columns;
  size_of = get (gcf (), 'position');
  left = 85 / size_of(3);
  below = 65 / size_of(4);
  width = 1 / columns;
  height = 1 / rows;
  place = [(first - 1) * width + left, 1 - row * height + below, (last - first + 1) * width - left - 25 / size_of(3), ...
           height - below - 40 / size_of(4)];
  ax = axes ('position', place);
end
