% QN.JOURNAL_COEFFICIENTS  equilibrium, stiffness and damping of a journal bearing under a load
%
% Purpose
%   Where a journal rests under a steady load, and the linear bearing that it is about that position: for critical speeds, unbalance response
%   and stability, and to know where to start a run. K and C are differences of the forces of the law itself.
%
% Calls
%   B = qn.journal_coefficients (LAW, LOAD)
%
% Input
%   LAW    from qn.journal, of a shaft that turns
%   LOAD   [x y] force on the journal [N]
%
% Output
%   B      struct: position      2 x 1, that of the journal [m]
%                  eccentricity  distance from the bearing's centre in parts of the clearance
%                  attitude      angle from the load to the position, in the sense of rotation [rad]
%                  stiffness     2 x 2, d force / d displacement, rows x and y of the force [N/m]
%                  damping       2 x 2, d force / d velocity [N s/m]
%                  mass          greatest mass of a rigid rotor, a bearing's share, that stays on the film at this speed [kg]; Inf: any
%                  whirl         frequency of its whirl at that mass over the speed; 0 where there is none
%
% Errors
%   qn:input  another law, a speed of 0 (a squeeze film carries no steady load), no load, or one that takes more than the law's limit of the
%             eccentricity
%
% Example
%   film = qn.journal ('viscosity', 0.1, 'length', 0.03, 'diameter', 0.1, 'clearance', 1e-4, 'speed', 50 * pi);
%   b = qn.journal_coefficients (film, [0 -525]);
%   [b.eccentricity, b.attitude * 180 / pi]       % 0.266 and 70.4 degrees
%   b.stiffness / 1e6                             % MN/m; for a linear model: qn.modal (..., 'K', ..., 'C', ...)
%
% See also qn.journal, qn.static, qn.modal
function b = journal_coefficients (law, load)
  who = 'qn.journal_coefficients';
  if nargin < 2, error ('qn:input', '%s: a law and a load expected; see help %s', who, who); end
  law = qn.impl.sound_law (who, law);
  if numel (law) ~= 1 || ~strcmp (law.kind, 'journal')
    error ('qn:input', '%s: a law from qn.journal expected, got %d of kind "%s"', who, numel (law), law(1).kind);
  end
  load = qn.impl.numbers (who, 'LOAD', load, 2, 'each', '[x y] on the journal');
  p = law.parameters;
  if p.speed == 0, error ('qn:input', '%s: the shaft does not turn: a squeeze film carries no steady load', who); end
  if ~any (load), error ('qn:input', '%s: "LOAD" is zero: without one the journal runs in the middle of its film', who); end
  unit = p.viscosity * abs (p.speed) * p.radius * p.length ^ 3 / (2 * p.clearance ^ 2);
  carried = @(e) unit * e / (2 * (1 - e ^ 2) ^ 2) * sqrt (16 * e ^ 2 + pi ^ 2 * (1 - e ^ 2));
  needed = norm (load);
  if needed > carried (p.limit)
    error ('qn:input', '%s: the film carries %.4g N at its greatest eccentricity of %g, and the load is %.4g N', who, carried (p.limit), ...
           p.limit, needed);
  end
  % In the logarithm both ends of what loads can be are told apart.
  e = fzero (@(e) log (carried (e) / needed), [min(1e-3, needed / (pi * unit)), p.limit], optimset ('TolX', 1e-15));
  attitude = atan2 (pi * sqrt (1 - e ^ 2), 4 * e);
  towards = atan2 (load(2), load(1)) + sign (p.speed) * attitude;
  b = struct ('position', [p.x0; p.y0] + e * p.clearance * [cos(towards); sin(towards)], 'eccentricity', e, 'attitude', attitude);
  [b.stiffness, b.damping] = qn.impl.tangent (law, b.position);
  [b.mass, b.whirl] = threshold (b.stiffness, b.damping, abs (p.speed));
end

% Where det (K - m w^2 + i w C) = 0 with real m and w.
function [mass, whirl] = threshold (k, c, speed)
  held = (k(1, 1) * c(2, 2) + k(2, 2) * c(1, 1) - k(1, 2) * c(2, 1) - k(2, 1) * c(1, 2)) / trace (c);
  square = ((k(1, 1) - held) * (k(2, 2) - held) - k(1, 2) * k(2, 1)) / det (c);
  [mass, whirl] = deal (Inf, 0);
  if square > 0 && held > 0
    mass = held / square;
    whirl = sqrt (square) / speed;
  end
end
