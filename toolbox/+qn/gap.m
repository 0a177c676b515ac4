% QN.GAP  one-sided contact behind a gap
%
% Purpose
%   No force until x reaches the gap, then a spring that can only push back. On a side where a soft layer (padding, grease, a
%   rough surface) comes first, its stiffness rises to that of the stop over its thickness.
%
% Calls
%   LAW = qn.gap ('gap', G, 'stiffness', K, ...)
%
% Input
%   Names and values
%     'gap'        distance that closes when x grows [m]. A negative one is a preload: the contact is pressed together by -gap at x = 0
%                  and pushes there already, with what qn.force (LAW, 0) says. qn.check says so; the structure is at rest in what
%                  qn.static finds, not at 0.
%     'stiffness'  contact stiffness [N/m]
%     'side'       1: closes when x grows (1); -1: closes at x = -gap when x falls
%     'padding'    thickness of a softer layer in front of the stop [m] (0)
%     'soft'       its stiffness [N/m] (a tenth of the stop's)
%
% Output
%   LAW   table law; see qn.law
%
% Errors
%   qn:input  a parameter is missing, unknown or not one finite number, a stiffness or thickness is negative
%
% Example
%   stop = qn.gap ('gap', 0.015, 'stiffness', 1e8, 'padding', 0.002, 'soft', 1e7);
%   qn.force (stop, [0 0.016 0.020])          % [0 1e4 3.2e5] N
%
% See also qn.stop, qn.bearing, qn.law
function law = gap (varargin)
  who = 'qn.gap';
  o = struct ('gap', '<required>', 'stiffness', '<required>', 'side', 1, 'padding', 0, 'soft', []);
  o = qn.impl.options (who, o, varargin);
  o.gap = qn.impl.scalar (who, 'gap', o.gap);
  o.stiffness = qn.impl.scalar (who, 'stiffness', o.stiffness, 0);
  if isempty (o.soft), o.soft = o.stiffness / 10; end
  o.padding = qn.impl.scalar (who, 'padding', o.padding, 0);
  o.soft = qn.impl.scalar (who, 'soft', o.soft, 0);
  o.side = qn.impl.scalar (who, 'side', o.side);
  if ~any (o.side == [1 -1]), error ('qn:input', '%s: "side" is 1 or -1, got %g', who, o.side); end
  [x, f] = qn.impl.contact (o.gap, o.stiffness, o.padding, o.soft);
  if o.side < 0
    x = -flipud (x);
    f = -flipud (f);
  end
  law = qn.law ('table', 'displacement', x, 'force', f);
  law.note = sprintf ('stop behind a gap of %g m', o.gap);
  if o.gap < 0, law.note = sprintf ('stop, preloaded by a gap of %g m', o.gap); end
end
