% QN.SLIDER  Coulomb slider: sticks like a stiff spring, slides at its slip force
%
% Purpose
%   Dry friction, as a spring that carries at most the slip force (Jenkins element). The stiffness represents the joint's own; the
%   stiffer, the closer to ideal Coulomb friction and the shorter the step has to be.
%
% Calls
%   LAW = qn.slider ('slip', F, 'stiffness', K)
%
% Input
%   Names and values
%     'slip'       slip force [N]
%     'stiffness'  stiffness while it sticks [N/m]
%
% Output
%   LAW   Dahl law with exponent 0; see qn.law
%
% Errors
%   qn:input  a parameter is missing, unknown, not one finite number or not above 0
%
% Example
%   t = (0:200) / 200;
%   x = 0.01 * sin (2 * pi * t);
%   f = qn.force (qn.slider ('slip', 10, 'stiffness', 1e4), x, gradient (x, t(2)), t(2));
%
% See also qn.iwan, qn.zener, qn.dissipated, qn.law
function law = slider (varargin)
  o = qn.impl.options ('qn.slider', struct ('slip', '<required>', 'stiffness', '<required>'), varargin);
  o.stiffness = qn.impl.scalar ('qn.slider', 'stiffness', o.stiffness, realmin ());
  o.slip = qn.impl.scalar ('qn.slider', 'slip', o.slip, realmin ());
  law = qn.law ('dahl', 'stiffness', o.stiffness, 'slip', o.slip, 'exponent', 0);
  law.note = 'Coulomb slider';
end
