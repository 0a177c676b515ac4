% QN.STOP  two-sided stop
%
% Purpose
%   Free play between two stops, then a spring on either side.
%
% Calls
%   LAW = qn.stop ('gap', G, 'stiffness', K, ...)
%
% Input
%   Names and values
%     'gap'        play on either side of x = 0 [m], or [left right], not negative; a preloaded contact is a qn.gap
%     'stiffness'  contact stiffness [N/m], or [left right]
%     'inner'      stiffness between the stops [N/m] (0)
%
% Output
%   LAW   table law; see qn.law
%
% Errors
%   qn:input  a parameter is missing, unknown or not finite, a gap or stiffness is negative (for a preload see qn.gap)
%
% Example
%   support = qn.stop ('gap', 0.001, 'stiffness', 1e7);
%   qn.force (support, [-0.002 0 0.002])      % [-1e4 0 1e4] N
%
% See also qn.gap, qn.bilinear, qn.bearing, qn.law
function law = stop (varargin)
  who = 'qn.stop';
  o = qn.impl.options (who, struct ('gap', '<required>', 'stiffness', '<required>', 'inner', 0), varargin);
  o.gap = qn.impl.numbers (who, 'gap', o.gap, [], 'list');
  o.stiffness = qn.impl.numbers (who, 'stiffness', o.stiffness, [], 'list', 'from', 0);
  if ~any (numel (o.gap) == [1 2]) || ~any (numel (o.stiffness) == [1 2])
    error ('qn:input', '%s: "gap" and "stiffness" take one value or [left right], got %d and %d', who, numel (o.gap), numel (o.stiffness));
  end
  gap = o.gap(:) .* ones (2, 1);
  k = o.stiffness(:) .* ones (2, 1);
  if any (gap < 0)
    error ('qn:input', ['%s: "gap" must be at least 0, got %g. A negative gap is a preload: the structure is pressed at x = 0; give ' ...
                        'each side as a qn.gap of its own then'], who, min (gap));
  end
  o.inner = qn.impl.scalar (who, 'inner', o.inner, 0);
  [left, right] = deal (o.inner * gap(1), o.inner * gap(2));
  unit = max ([gap; 1e-3]);
  x = [-gap(1) - unit; -gap(1); gap(2); gap(2) + unit];
  f = [-left - k(1) * unit; -left; right; right + k(2) * unit];
  law = qn.law ('table', 'displacement', x, 'force', f);
  law.note = sprintf ('two-sided stop, play from %g to %g m', -gap(1), gap(2));
end
