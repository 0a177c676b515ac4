% QN.BILINEAR  elastic spring whose stiffness changes at a displacement
%
% Purpose
%   A spring with one stiffness for small displacements and another beyond, the same on both sides. It has no memory: for a spring
%   that yields, put a qn.slider beside a linear one.
%
% Calls
%   LAW = qn.bilinear ('first', K1, 'second', K2, 'at', X)
%
% Input
%   Names and values
%     'first'   stiffness up to the bend [N/m]
%     'second'  stiffness beyond it [N/m]
%     'at'      displacement of the bend, on either side [m]
%
% Output
%   LAW   table law; see qn.law
%
% Errors
%   qn:input  a parameter is missing, unknown or not one finite number, or the bend is not above 0
%
% Example
%   spring = qn.bilinear ('first', 1e5, 'second', 4e5, 'at', 0.01);
%   qn.force (spring, [-0.02 0.005 0.02])     % [-5000 500 5000] N
%
% See also qn.stop, qn.cubic, qn.slider, qn.law
function law = bilinear (varargin)
  who = 'qn.bilinear';
  o = qn.impl.options (who, struct ('first', '<required>', 'second', '<required>', 'at', '<required>'), varargin);
  o.first = qn.impl.scalar (who, 'first', o.first);
  o.second = qn.impl.scalar (who, 'second', o.second);
  o.at = qn.impl.scalar (who, 'at', o.at, realmin ());
  f = o.at * [o.first; o.first + o.second];
  law = qn.law ('table', 'displacement', o.at * [-2; -1; 1; 2], 'force', [-flipud(f); f]);
  law.note = sprintf ('bilinear spring, %g and %g N/m', o.first, o.second);
end
