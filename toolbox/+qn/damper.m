% QN.DAMPER  damper whose force is a power of the velocity: linear, quadratic, or between them
%
% Purpose
%   A dashpot, F = C |v|^A against the motion. A = 1 is the linear one, A = 2 drag and flow through an orifice, A from 0.2 to 1 that of
%   fluid dampers in buildings. A model's own linear damping ('damping', 'C' of qn.modal) is integrated implicitly, this one is not: the
%   step must keep h C / m small (qn.check says so; docs/theory.md). With A below 1 its force changes its sign in each step near rest, below
%   (h C / (2 m)) ^ (1/(1-A)) with the mass m that it meets: qn.check names that speed (damper_chatter in docs/checks.md).
%
% Calls
%   LAW = qn.damper ('damping', C, ...)
%
% Input
%   Names and values
%     'damping'   C, not negative [N (s/m)^A]
%     'exponent'  A, above 0 [-] (1)
%
% Output
%   LAW   damper law; see qn.law
%
% Errors
%   qn:input  the damping is missing or negative, the exponent is not above 0, or a value is not one finite number
%
% Example
%   drag = qn.damper ('damping', 0.6, 'exponent', 2);
%   qn.force (drag, [0 0 0], [-2 0 3])      % [-2.4 0 5.4] N
%
% See also qn.modal, qn.zener, qn.dissipated, qn.law
function law = damper (varargin)
  who = 'qn.damper';
  o = qn.impl.options (who, struct ('damping', '<required>', 'exponent', 1), varargin);
  o.damping = qn.impl.scalar (who, 'damping', o.damping, 0);
  o.exponent = qn.impl.scalar (who, 'exponent', o.exponent, realmin ());
  law = qn.law ('damper', 'damping', o.damping, 'exponent', o.exponent);
end
