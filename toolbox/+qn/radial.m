% QN.RADIAL  contact of a round shaft in a round clearance, with friction
%
% Purpose
%   A shaft in a retainer ring, a seal or a bearing with play: no force until it has moved by the gap in whatever direction, then a
%   force along the radius, K d^p (1 + CHI d') of the depth d (Hunt and Crossley, 1975; it never pulls), and friction MU times that
%   force against the sliding of the surfaces. To that the surface speed R W of the shaft counts: a rub drives a backward whirl.
%
% Calls
%   LAW = qn.radial ('gap', G, 'stiffness', K, ...)
%
% Input
%   Names and values
%     'gap'        radial clearance [m], not negative
%     'stiffness'  K [N/m^p], not negative
%     'exponent'   p (1); 3/2 for a ball, 10/9 for a roller
%     'damping'    CHI [s/m], not negative (0): 1.5 CHI v is about the part of the speed v that a central impact loses
%     'friction'   MU, not negative (0)
%     'onset'      sliding speed [m/s] from which on friction is whole (0.01): the coefficient is MU s / sqrt (s^2 + onset^2). The smaller,
%                  the shorter the step has to be where surfaces do not slide; qn.check says so after a run.
%     'radius'     R, radius of the shaft where it touches [m], and
%     'speed'      W, angular speed of the shaft, from x to y [rad/s]. It is kept, whatever the friction takes of it, in a run-up too.
%                  Both are needed where there is friction; 'speed', 0 alone is a shaft that does not turn.
%     'centre'     [x y] of the housing's centre [m] ([0 0])
%
% Output
%   LAW   radial law, for two observation rows: x and y of the shaft against the housing; see qn.law
%
% Errors
%   qn:input  a parameter is missing, unknown, not one finite number or out of its range; friction without the speed of the surface
%
% Example
%   ring = qn.radial ('gap', 1e-4, 'stiffness', 2e7, 'friction', 0.1, 'radius', 0.02, 'speed', 300);
%   qn.force (ring, [2e-4; 0], [0; 0])        % 2000 N along x, 200 N along y: 6 m/s of surface slide past
%
% See also qn.law, qn.bearing, qn.stop, qn.plot.orbit
function law = radial (varargin)
  who = 'qn.radial';
  o = struct ('gap', '<required>', 'stiffness', '<required>', 'exponent', 1, 'damping', 0, 'friction', 0, 'onset', 0.01, 'radius', [], ...
              'speed', [], 'centre', [0 0]);
  o = qn.impl.options (who, o, varargin);
  for name = {'gap', 'stiffness', 'damping', 'friction'}, o.(name{1}) = qn.impl.scalar (who, name{1}, o.(name{1}), 0); end
  o.exponent = qn.impl.scalar (who, 'exponent', o.exponent, 1);
  o.onset = qn.impl.scalar (who, 'onset', o.onset, realmin ());
  if ~isempty (o.radius), o.radius = qn.impl.scalar (who, 'radius', o.radius, 0); end
  if ~isempty (o.speed), o.speed = qn.impl.scalar (who, 'speed', o.speed); end
  o = with_surface (who, o);
  centre = qn.impl.numbers (who, 'centre', o.centre, 2, 'each', '[x y] of the housing');
  law = qn.law ('radial', 'gap', o.gap, 'stiffness', o.stiffness, 'exponent', o.exponent, 'damping', o.damping, 'friction', o.friction, ...
                'onset', o.onset, 'radius', o.radius, 'speed', o.speed, 'x0', centre(1), 'y0', centre(2));
  law.note = sprintf ('round clearance of %g m', o.gap);
end

% Friction works against the surface speed R W: where it is not known there is no saying which way it pushes.
function o = with_surface (who, o)
  if o.friction > 0 && isempty (o.speed)
    error ('qn:input', ['%s: "friction" of %g needs "radius" and "speed" of the shaft, whose surface speed it works against; of a ' ...
                        'shaft that does not turn give "speed", 0'], who, o.friction);
  end
  if isempty (o.speed), o.speed = 0; end
  if o.friction > 0 && o.speed ~= 0 && (isempty (o.radius) || o.radius == 0)
    error ('qn:input', ['%s: "friction" of %g at the "speed" of %g rad/s needs a "radius" above 0: without one the surface of the ' ...
                        'shaft stands still'], who, o.friction, o.speed);
  end
  if isempty (o.radius), o.radius = 0; end
end
