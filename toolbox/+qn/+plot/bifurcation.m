% QN.PLOT.BIFURCATION  points of Poincare sections against the parameter of a sweep
%
% Purpose
%   One point above a value: the motion has the period of its load; two: it repeats after two periods; a band: it does not repeat.
%
% Calls
%   qn.plot.bifurcation (VALUES, POINTS, ...)
%
% Input
%   VALUES   p values of the parameter
%   POINTS   cell of p lists, the points at each value: from qn.poincare, one row of each, as qn.sweep returns them
%   Names and values
%     'label'  text for the axis of the parameter ('Parameter')
%     'unit'   unit of the points ('m')
%
% Errors
%   qn:input  the lengths differ, or a value is not finite
%
% Example
%   r = 2.8:0.02:3.4;
%   points = cell (size (r));
%   for k = 1:numel (r)
%     x = 0.3;
%     for j = 1:200, x(j + 1) = r(k) * x(j) * (1 - x(j)); end
%     points{k} = x(150:end);
%   end
%   fig = qn.plot.page ();
%   qn.plot.bifurcation (r, points, 'label', 'Growth', 'unit', '');
%   close (fig);
%
% See also qn.poincare, qn.sweep, qn.plot.poincare
function bifurcation (values, points, varargin)
  who = 'qn.plot.bifurcation';
  if nargin < 2, error ('qn:input', '%s: values of a parameter and points expected; see help %s', who, who); end
  o = qn.impl.options (who, struct ('label', 'Parameter', 'unit', 'm'), varargin);
  values = reshape (qn.impl.numbers (who, 'VALUES', values, [], 'list'), 1, []);
  if ~iscell (points) || numel (points) ~= numel (values)
    error ('qn:input', '%s: "POINTS" must be a cell of %d lists, one for each of "VALUES"', who, numel (values));
  end
  x = cell (1, numel (values));
  y = x;
  for k = 1:numel (values)
    y{k} = reshape (qn.impl.numbers (who, sprintf ('POINTS{1, %d}', k), points{k}, [], 'list', 'empty'), 1, []);
    x{k} = values(k) * ones (1, numel (y{k}));
  end
  x = [x{:}];
  y = [y{:}];
  [f, unit] = deal (1, '');
  if ~isempty (o.unit), [f, unit] = qn.impl.prefixed (y, o.unit); end
  plot (x, f * y, '.', 'color', qn.impl.colours (1), 'markersize', 4);
  up = 'Once in a period';
  if ~isempty (unit), up = sprintf ('%s [%s]', up, unit); end
  qn.impl.style ('Bifurcation diagram', o.label, up, {});
end
