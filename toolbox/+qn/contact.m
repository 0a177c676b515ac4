% QN.CONTACT  one-sided stop that loses energy: stiff and damped contact after Hunt and Crossley (1975)
%
% Purpose
%   A contact of the depth d pushes with K d^P (1 + CHI d'), and never pulls. Force and damping begin at zero, so that there is no jump
%   where it closes or opens, and the restitution e of a mass that hits a fixed stop at the speed v0 depends on CHI v0 = D alone:
%   D (1 + e) = log ((1 + D) / (1 - D e)), which for small D is e = 1 - 2 D / 3. For a contact without losses qn.gap will do.
%
% Calls
%   LAW = qn.contact ('stiffness', K, ...)
%   LAW = qn.contact ('stiffness', K, 'restitution', E, 'speed', V0, ...)
%
% Input
%   Names and values
%     'stiffness'    K [N/m^P]; of two balls of steel with the radii r: 1e11 sqrt (r) with P = 1.5 (Hertz)
%     'exponent'     P, above 0 [-] (1.5)
%     'damping'      CHI, not negative [s/m] (0)
%     'restitution'  E, above 0 and at most 1, instead of 'damping' [-], and
%     'speed'        V0 at which it holds [m/s]; faster impacts lose more
%     'gap'          distance from x = 0 to the stop [m] (0); negative: preloaded
%     'side'         1: it is met where x grows, -1: where it falls (1)
%
% Output
%   LAW   impact law; see qn.law
%
% Errors
%   qn:input  the stiffness is missing, a parameter is not one finite number or out of its range, a restitution comes without a speed, or
%             both a restitution and a damping are given
%
% Example
%   stop = qn.contact ('stiffness', 1e8, 'restitution', 0.8, 'speed', 0.5, 'gap', 1e-3);
%   qn.force (stop, [0 1.1e-3 1.1e-3], [1 0.5 -0.5])
%
% See also qn.gap, qn.contacts, qn.damper, qn.law
function law = contact (varargin)
  who = 'qn.contact';
  o = struct ('stiffness', '<required>', 'exponent', 1.5, 'damping', [], 'restitution', [], 'speed', [], 'gap', 0, 'side', 1);
  o = qn.impl.options (who, o, varargin);
  o.stiffness = qn.impl.scalar (who, 'stiffness', o.stiffness, 0);
  o.exponent = qn.impl.scalar (who, 'exponent', o.exponent, realmin ());
  o.gap = qn.impl.scalar (who, 'gap', o.gap);
  o.side = qn.impl.scalar (who, 'side', o.side);
  if isempty (o.restitution) ~= isempty (o.speed)
    error ('qn:input', '%s: "restitution" and "speed" go together: the restitution of an impact depends on its speed', who);
  end
  if isempty (o.damping) && isempty (o.restitution), o.damping = 0; end
  if ~isempty (o.restitution)
    if ~isempty (o.damping), error ('qn:input', '%s: give "damping" or "restitution", not both', who); end
    e = qn.impl.numbers (who, 'restitution', o.restitution, [1 1], 'above', 0, 'to', 1);
    o.damping = product_for (e) / qn.impl.scalar (who, 'speed', o.speed, realmin ());
  end
  o.damping = qn.impl.scalar (who, 'damping', o.damping, 0);
  law = qn.law ('contact', 'stiffness', o.stiffness, 'exponent', o.exponent, 'damping', o.damping, 'gap', o.gap, 'side', o.side);
end

% The product D of damping and speed that gives the restitution E, by bisection between 0 and 1/E; near E = 1 cancellation would spoil it.
function d = product_for (e)
  d = 1.5 * (1 - e);
  if 1 - e < 1e-5, return, end
  [low, high] = deal (0, 1 / e);
  for k = 1:200
    d = (low + high) / 2;
    if d * (1 + e) > log1p (d) - log (max (1 - d * e, realmin ())), low = d; else, high = d; end
  end
end
