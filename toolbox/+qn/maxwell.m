% QN.MAXWELL  generalised Maxwell damper: spring-and-damper branches in parallel, and a spring beside them
%
% Purpose
%   Viscoelastic mounts and materials (Prony series). Under x = X exp (i w t) the force is D(w) x with the dynamic stiffness
%   D(w) = K + sum of Kj * i w tj / (1 + i w tj), tj = Cj / Kj.
%
% Calls
%   LAW = qn.maxwell ('springs', KJ, 'dampers', CJ, ...)
%   LAW = qn.maxwell ('springs', KJ, 'times', TJ, ...)
%
% Input
%   Names and values
%     'springs'    stiffness of every branch [N/m]
%     'dampers'    damper of every branch [N s/m]
%     'times'      relaxation time of every branch [s], instead of the dampers
%     'stiffness'  spring beside the branches [N/m] (0)
%
% Output
%   LAW   Maxwell law; see qn.law. Its states advance by the explicit Euler rule: the time step has to be well below the shortest
%         relaxation time.
%
% Errors
%   qn:input  parameters are missing, not finite or not above 0, or not as many dampers as springs
%
% Example
%   mount = qn.maxwell ('stiffness', 2e5, 'springs', [1e5 5e4], 'times', [0.01 0.1]);
%   qn.describe (mount);
%
% See also qn.zener, qn.law, qn.dissipated
function law = maxwell (varargin)
  who = 'qn.maxwell';
  o = struct ('springs', '<required>', 'dampers', [], 'times', [], 'stiffness', 0);
  o = qn.impl.options (who, o, varargin);
  if isempty (o.dampers) == isempty (o.times), error ('qn:input', '%s: either "dampers" or "times" are needed', who); end
  o.springs = qn.impl.numbers (who, 'springs', o.springs, [], 'list', 'above', 0);
  o.stiffness = qn.impl.scalar (who, 'stiffness', o.stiffness);
  n = numel (o.springs);
  if isempty (o.dampers)
    o.times = qn.impl.numbers (who, 'times', o.times, n, 'above', 0, 'each', 'one a spring');
    o.dampers = o.times(:) .* o.springs(:);
  end
  o.dampers = qn.impl.numbers (who, 'dampers', o.dampers, n, 'above', 0, 'each', 'one a spring');
  law = qn.law ('maxwell', 'springs', o.springs, 'dampers', o.dampers, 'stiffness', o.stiffness);
  law.note = 'generalised Maxwell damper';
end
