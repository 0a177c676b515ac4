% QN.BOUCWEN  smooth hysteresis after Bouc (1967) and Wen (1976): yielding joints, isolators, steel dampers
%
% Purpose
%   A spring that yields gradually: the force starts along K and bends into the line of stiffness RATIO * K, which meets K at the
%   displacement Y; it unloads along K. In the law's own parameters (qn.law, 'boucwen') A = 1, beta = SHAPE / Y^N and
%   gamma = (1 - SHAPE) / Y^N.
%
% Calls
%   LAW = qn.boucwen ('stiffness', K, 'yield', Y, ...)
%
% Input
%   Names and values
%     'stiffness'  K at rest, not negative [N/m]
%     'yield'      Y, displacement at which both lines meet [m]
%     'ratio'      stiffness after yielding as a part of K, from 0 to 1 [-] (0)
%     'exponent'   N, sharpness of the knee; from 10 on nearly two straight lines [-] (2)
%     'shape'      beta / (beta + gamma), at least 0.5, where it unloads straight; more makes rounder loops [-] (0.5)
%
% Output
%   LAW   Bouc-Wen law; see qn.law
%
% Errors
%   qn:input  stiffness or yield is missing, or a parameter is not one finite number or out of its range
%
% Example
%   t = (0:2000) * 1e-3;
%   x = 0.03 * sin (2 * pi * t);
%   f = qn.force (qn.boucwen ('stiffness', 1e5, 'yield', 0.01, 'ratio', 0.1), x, gradient (x, 1e-3), 1e-3);
%   plot (x, f);
%
% See also qn.slider, qn.iwan, qn.dissipated, qn.law
function law = boucwen (varargin)
  who = 'qn.boucwen';
  o = struct ('stiffness', '<required>', 'yield', '<required>', 'ratio', 0, 'exponent', 2, 'shape', 0.5);
  o = qn.impl.options (who, o, varargin);
  o.stiffness = qn.impl.scalar (who, 'stiffness', o.stiffness, 0);
  o.yield = qn.impl.scalar (who, 'yield', o.yield, realmin ());
  o.ratio = qn.impl.numbers (who, 'ratio', o.ratio, [1 1], 'from', 0, 'to', 1);
  o.exponent = qn.impl.scalar (who, 'exponent', o.exponent, realmin ());
  o.shape = qn.impl.scalar (who, 'shape', o.shape, 0.5);
  unit = o.yield ^ -o.exponent;
  if ~isfinite (unit) || unit == 0
    error ('qn:input', '%s: "yield" %g to the power "exponent" %g is beyond all numbers', who, o.yield, o.exponent);
  end
  law = qn.law ('boucwen', 'stiffness', o.stiffness, 'ratio', o.ratio, 'beta', o.shape * unit, 'gamma', (1 - o.shape) * unit, ...
                'exponent', o.exponent);
end
