% QN.JOURNAL  oil film of a short plain bearing, or of a squeeze film damper
%
% Purpose
%   Forces on a journal in its film, from its position and velocity in two directions (Ocvirk, 1952; DuBois and Ocvirk, 1953), with
%   the film ruptured where it widens. In a run it shows oil whirl and its orbit; qn.journal_coefficients gives stiffness and damping at the
%   equilibrium under a load.
%
% Calls
%   LAW = qn.journal ('viscosity', MU, 'length', L, 'radius', R, 'clearance', C, 'speed', W, ...)
%
% Input
%   Names and values
%     'viscosity'  MU, at the temperature of the film [Pa s]
%     'length'     L of the bearing [m]; short means up to about its radius, qn.check says where it is not
%     'radius'     R of the journal [m], or
%     'diameter'   2 R [m]
%     'clearance'  C, radial [m]
%     'speed'      W, angular speed from x to y [rad/s], kept in a run-up too; 0 is a squeeze film damper
%     'limit'      eccentricity in parts of the clearance up to which the film is that of the formula (0.99). Beyond it the force stays that
%                  of the limit, and qn.run warns of the result (film_left in docs/checks.md). A smaller limit allows longer steps.
%     'centre'     [x y] of the bearing's centre [m] ([0 0])
%
% Output
%   LAW   journal law, for two observation rows: x and y of the journal relative to the bearing; see qn.law
%
% Errors
%   qn:input  a parameter is missing, unknown, not one finite number or out of its range; both or neither of radius and diameter; a
%             clearance that is not below the radius
%   The warning qn:journal names a clearance that is less than 1e-4 or more than 1e-2 of the radius (film_ratio in docs/checks.md)
%
% Example
%   film = qn.journal ('viscosity', 0.1, 'length', 0.03, 'diameter', 0.1, 'clearance', 1e-4, 'speed', 157);
%   qn.force (film, [3e-5; 0], [0; 0])        % along the line of centres, and across it
%
% See also qn.journal_coefficients, qn.static, qn.radial, qn.law, qn.plot.orbit
function law = journal (varargin)
  who = 'qn.journal';
  o = struct ('viscosity', '<required>', 'length', '<required>', 'radius', [], 'diameter', [], 'clearance', '<required>', ...
              'speed', '<required>', 'limit', 0.99, 'centre', [0 0]);
  o = qn.impl.options (who, o, varargin);
  if isempty (o.radius) == isempty (o.diameter), error ('qn:input', '%s: give "radius" or "diameter", one of them', who); end
  if isempty (o.radius), o.radius = qn.impl.scalar (who, 'diameter', o.diameter, realmin ()) / 2; end
  for name = {'viscosity', 'length', 'radius', 'clearance', 'limit'}
    o.(name{1}) = qn.impl.scalar (who, name{1}, o.(name{1}), realmin ());
  end
  o.speed = qn.impl.scalar (who, 'speed', o.speed);
  if o.limit >= 1, error ('qn:input', '%s: "limit" must be below 1, got %.15g', who, o.limit); end
  centre = qn.impl.numbers (who, 'centre', o.centre, 2, 'each', '[x y] of the bearing');
  if o.clearance >= o.radius
    error ('qn:input', '%s: "clearance" of %g m is not below the radius of the journal, %g m: is it in m?', who, o.clearance, o.radius);
  end
  if o.clearance / o.radius < 1e-4 || o.clearance / o.radius > 1e-2
    warning ('qn:journal', ['%s: "clearance" is %.2g of the radius of the journal, where bearings have 1e-4 to 1e-2: are both in m, ' ...
                            'and is the clearance that of the radius?'], who, o.clearance / o.radius);
  end
  law = qn.law ('journal', 'viscosity', o.viscosity, 'length', o.length, 'radius', o.radius, 'clearance', o.clearance, ...
                'speed', o.speed, 'limit', o.limit, 'x0', centre(1), 'y0', centre(2));
  law.note = 'journal bearing';
  if o.speed == 0, law.note = 'squeeze film damper'; end
end
