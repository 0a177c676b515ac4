% QN.BEARING  table of a rolling bearing: clearance, then Hertzian contact
%
% Purpose
%   Radial force of a bearing along one direction: none inside the clearance, then K * d^n of the deflection d beyond it, the same
%   on both sides; n is 3/2 for balls, 10/9 for rollers. A measured curve can be given instead.
%
% Calls
%   LAW = qn.bearing ('stiffness', K, ...)
%   LAW = qn.bearing ('deflection', D, 'force', F)
%
% Input
%   Names and values
%     'stiffness'   K [N/m^n]
%     'exponent'    n (1.5)
%     'clearance'   play on either side [m] (0)
%     'range'       greatest deflection beyond the clearance that the table covers [m] (1e-3); beyond it the last slope continues
%     'knots'       number of knots on either side (60), closer to one another near the contact
%     'deflection', 'force'  measured curve, from zero upwards [m, N]; it is mirrored
%
% Output
%   LAW   table law; see qn.law
%
% Errors
%   qn:input  a parameter is missing, not one finite number or out of its range, or a measured curve does not ascend
%
% Example
%   ball = qn.bearing ('stiffness', 1e10, 'clearance', 10e-6, 'range', 200e-6);
%   qn.force (ball, [-30e-6 0 30e-6])
%
% See also qn.stop, qn.gap, qn.law
function law = bearing (varargin)
  who = 'qn.bearing';
  o = struct ('stiffness', [], 'exponent', 1.5, 'clearance', 0, 'range', 1e-3, 'knots', 60, 'deflection', [], 'force', []);
  o = qn.impl.options (who, o, varargin);
  if ~isempty (o.deflection)
    d = qn.impl.numbers (who, 'deflection', o.deflection, [], 'list', 'from', 0, 'ascending');
    f = qn.impl.numbers (who, 'force', o.force, numel (d), 'each', 'one a deflection');
    d = d(:);
    f = f(:);
    if d(1) == 0, d = d(2:end); f = f(2:end); end
    note = 'measured bearing';
  else
    if isempty (o.stiffness), error ('qn:input', '%s: the parameter "stiffness" is missing, or a measured curve', who); end
    o.stiffness = qn.impl.scalar (who, 'stiffness', o.stiffness, realmin ());
    o.exponent = qn.impl.scalar (who, 'exponent', o.exponent, 1);
    o.clearance = qn.impl.scalar (who, 'clearance', o.clearance, 0);
    o.range = qn.impl.scalar (who, 'range', o.range, realmin ());
    o.knots = qn.impl.numbers (who, 'knots', o.knots, [1 1], 'from', 2, 'to', 1e6, 'whole');
    depth = o.range * linspace (0, 1, o.knots).' .^ 2;
    d = o.clearance + depth;
    f = o.stiffness * depth .^ o.exponent;
    if o.clearance == 0, d = d(2:end); f = f(2:end); end
    note = sprintf ('bearing with a clearance of %g m', o.clearance);
  end
  law = qn.law ('table', 'displacement', [-flipud(d); 0; d], 'force', [-flipud(f); 0; f]);
  law.note = note;
end
