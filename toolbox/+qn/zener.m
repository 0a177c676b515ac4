% QN.ZENER  Zener element (standard linear solid): a spring beside one Maxwell branch
%
% Purpose
%   The simplest viscoelastic element with a finite stiffness both at rest and in quick motion. Its loss factor is greatest at
%   w = sqrt (K / (K + K1)) / t with t = C / K1 and amounts to K1 / (2 sqrt (K (K + K1))).
%
% Calls
%   LAW = qn.zener ('stiffness', K, 'spring', K1, 'damper', C)
%
% Input
%   Names and values
%     'stiffness'  K, stiffness at rest [N/m]
%     'spring'     K1, stiffness of the branch [N/m]
%     'damper'     C, damper of the branch [N s/m]
%
% Output
%   LAW   Maxwell law with one branch; see qn.maxwell
%
% Errors
%   qn:input  a parameter is missing, not one finite number or not above 0
%
% Example
%   isolator = qn.zener ('stiffness', 1e5, 'spring', 2e5, 'damper', 1e3);
%   qn.describe (isolator);
%
% See also qn.maxwell, qn.law, qn.dissipated
function law = zener (varargin)
  o = struct ('stiffness', '<required>', 'spring', '<required>', 'damper', '<required>');
  o = qn.impl.options ('qn.zener', o, varargin);
  o.stiffness = qn.impl.scalar ('qn.zener', 'stiffness', o.stiffness, 0);
  o.spring = qn.impl.scalar ('qn.zener', 'spring', o.spring, realmin ());
  o.damper = qn.impl.scalar ('qn.zener', 'damper', o.damper, realmin ());
  law = qn.law ('maxwell', 'springs', o.spring, 'dampers', o.damper, 'stiffness', o.stiffness);
  law.note = 'Zener element';
end
