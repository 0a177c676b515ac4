% QN.PLOT.PAGE  a figure to draw on, hidden where there is no screen
%
% Purpose
%   A white page that comes out the same on a screen, in a script without one, and in a file of qn.plot.picture. For several panels on it
%   use qn.plot.panel, which leaves room for their titles; the host's subplot does not.
%
% Calls
%   FIG = qn.plot.page ()
%   FIG = qn.plot.page (WIDTH, HEIGHT)
%
% Input
%   WIDTH, HEIGHT   size in pixels (900, 600)
%
% Output
%   FIG   handle of the figure, now the current one
%
% Errors
%   qn:input  WIDTH or HEIGHT is not one number of at least 100
%
% Example
%   fig = qn.plot.page (600, 400);
%   plot (0:10, (0:10) .^ 2);
%   close (fig);
%
% See also qn.plot.panel, qn.plot.picture, qn.plot.series
function fig = page (width, height)
  if nargin < 2
    width = 900;
    height = 600;
  end
  width = qn.impl.scalar ('qn.plot.page', 'WIDTH', width, 100);
  height = qn.impl.scalar ('qn.plot.page', 'HEIGHT', height, 100);
  octave = exist ('OCTAVE_VERSION', 'builtin') > 0;
  screen = ~isempty (getenv ('DISPLAY')) || ispc () || (~octave && usejava ('desktop'));
  visible = {'off', 'on'};
  if octave && ~screen
    warning ('off', 'Octave:gnuplot-graphics', 'local');
    graphics_toolkit ('gnuplot');
  end
  fig = figure ('visible', visible{1 + screen}, 'color', [1 1 1], 'position', [100, 100, width, height]);
end
