% QN.PLOT.SERIES  time history of displacements or forces
%
% Purpose
%   Draws into the current axes, in units that suit the size of the motion.
%
% Calls
%   qn.plot.series (RES, C)
%   qn.plot.series (RES, C, NAMES)
%   qn.plot.series (RES, 'force', ROWS, NAMES)
%
% Input
%   RES     from qn.run
%   C       p x m observation rows, or numbers of degrees of freedom as for qn.displacement
%   ROWS    rows of RES.force instead
%   NAMES   cell of p texts for the legend
%
% Errors
%   qn:input  the rows do not fit the model, or there are no such rows of forces
%
% Example
%   model = qn.modal (1e4 * [2 -1; -1 1], eye (2), 'damping', 0.02);
%   res = qn.run (qn.simulation (model, 'step', 1e-3, 'steps', 1000, 'v0', [0; 1]));
%   fig = qn.plot.page ();
%   qn.plot.series (res, qn.observe (model, [1 2]), {'middle', 'tip'});
%   close (fig);
%
% See also qn.plot.phase, qn.plot.loop, qn.plot.page
function series (res, c, varargin)
  if nargin < 1, res = []; end
  qn.impl.expect_result_of ('qn.plot.series', res, 'qn.run');
  if nargin < 2, error ('qn:input', 'qn.plot.series: observation rows or ''force'' expected; see help qn.plot.series'); end
  c = qn.impl.chars (c);
  if ischar (c)
    if ~strcmp (c, 'force') || isempty (varargin)
      error ('qn:input', 'qn.plot.series: observation rows or ''force'' and its rows expected');
    end
    rows = varargin{1};
    n = size (res.force, 1);
    rows = qn.impl.numbers ('qn.plot.series', 'ROWS', rows, [], 'list', 'whole', 'from', 1);
    if any (rows > n), error ('qn:input', 'qn.plot.series: "ROWS" has %g; the result has %d rows of forces', max (rows), n); end
    y = res.force(rows, :);
    varargin(1) = [];
    [what, unit] = deal ('Force', 'N');
  else
    y = qn.impl.observation_rows (res.sim.model, c, 'qn.plot.series: ') * res.q;
    [what, unit] = deal ('Displacement', 'm');
  end
  names = {};
  if ~isempty (varargin), names = varargin{1}; end
  qn.impl.histories (sprintf ('%s history', what), res.time, y, what, unit, names);
end
