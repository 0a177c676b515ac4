% [KE, ME] = BEAM_ELEMENT (XY, SECTION)  stiffness and consistent mass of one plane Euler-Bernoulli beam with axial stiffness
%
% Input   XY       2x2 coordinates of the two ends, one row an end [m]
%         SECTION  struct: e Young's modulus [Pa], a area [m^2], i second moment of area [m^4], m mass per length [kg/m]
% Output  KE, ME   6x6, global axes, degrees of freedom [x1 y1 rz1 x2 y2 rz2], units N/m, N, N*m/rad and kg, kg*m, kg*m^2
%
% Cubic Hermite shape functions for bending, linear ones for the axial motion; rotary inertia of the section is left out, as
% Euler-Bernoulli theory does.
function [ke, me] = beam_element (xy, section)
  d = xy(2, :) - xy(1, :);
  l = sqrt (sum (d .^ 2));
  bending = [2 3 5 6];
  axial = [1 4];

  k = zeros (6, 6);
  k(axial, axial) = section.e * section.a / l * [1 -1; -1 1];
  k(bending, bending) = section.e * section.i / l ^ 3 * ...
    [12, 6*l, -12, 6*l; 6*l, 4*l^2, -6*l, 2*l^2; -12, -6*l, 12, -6*l; 6*l, 2*l^2, -6*l, 4*l^2];

  m = zeros (6, 6);
  m(axial, axial) = section.m * l / 6 * [2 1; 1 2];
  m(bending, bending) = section.m * l / 420 * ...
    [156, 22*l, 54, -13*l; 22*l, 4*l^2, 13*l, -3*l^2; 54, 13*l, 156, -22*l; -13*l, -3*l^2, -22*l, 4*l^2];

  c = d(1) / l;
  s = d(2) / l;
  rotation = [c s 0; -s c 0; 0 0 1];
  to_local = [rotation, zeros(3, 3); zeros(3, 3), rotation];
  ke = to_local.' * k * to_local;
  me = to_local.' * m * to_local;
end
