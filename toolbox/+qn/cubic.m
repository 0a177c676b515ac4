% QN.CUBIC  cubic spring, force = K * x^3
%
% Purpose
%   The hardening (or, with a negative K, softening) part of a Duffing oscillator; the linear part belongs to the model.
%
% Calls
%   LAW = qn.cubic ('stiffness', K)
%
% Input
%   Names and values
%     'stiffness'  K [N/m^3]
%
% Output
%   LAW   power law; see qn.law
%
% Errors
%   qn:input  the stiffness is missing or not one finite number
%
% Example
%   qn.force (qn.cubic ('stiffness', 2), [-1 0 3])      % [-2 0 54] N
%
% See also qn.backbone, qn.bilinear, qn.law
function law = cubic (varargin)
  o = qn.impl.options ('qn.cubic', struct ('stiffness', '<required>'), varargin);
  law = qn.law ('power', 'stiffness', qn.impl.scalar ('qn.cubic', 'stiffness', o.stiffness), 'exponent', 3);
  law.note = 'cubic spring';
end
