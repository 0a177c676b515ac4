% QN.ROTOR  a rotor: shaft, disks, bearings, seals and stator as plain matrices
%
% Purpose
%   Builds M, K, C, G and N of M q'' + (C + W G) q' + (K + W N) q = F at the speed of rotation W. A node has four degrees of freedom x, y, thx, thy:
%   displacements across the shaft, and rotations about the axes x and y (thy = dx/dz, thx = -dy/dz, z along the shaft). The spin turns
%   x towards y. The elements are beams with shear and rotary inertia (Timoshenko) of round section.
%
% Calls
%   R = qn.rotor (NAME, VALUE, ...)
%   R = qn.rotor (R, 'speed', W)
%
% Input
%   R   from qn.rotor, as it was made: what depends on the speed is formed again at W
%   Names and values
%     'nodes'      positions of the nodes along the shaft, ascending [m]; or
%     'shaft'      a structure with the fields M, K and perhaps C, G and N [per rad/s], from another program. Where its degrees of freedom
%                  are not four a node in the order above, its field "places" has a row a node with the numbers of x and y, or of
%                  x, y, thx, thy.
%     'outer'      outer diameter, one for all elements or one an element [m]
%     'inner'      inner diameter [m] (0)
%     'young'      Young's modulus [N/m^2] (2.1e11)
%     'density'    [kg/m^3] (7850)
%     'poisson'    Poisson's ratio (0.3)
%     'shear'      false: beams without shear deformation (true)
%     'internal'   viscous damping that turns with the shaft, over its stiffness: one time for all or one an element [s] (0). The moment
%                  of a section follows the strain and 'internal' times its rate as the shaft feels them: C gets eta K of the shaft,
%                  and N what the rotation of the frame leaves, across the deflection. It feeds forward whirl slower than the rotation.
%                  With "shaft" one value, for the K given, whose degrees of freedom must all have places.
%     'disks'      rows [node mass Id Ip]: moments of inertia about a diameter and about the axis [kg, kg m^2]
%     'cylinders'  rows [node width outer inner density]: solid disks by their dimensions [m, kg/m^3]
%     'bearings'   {NODE, K, C; ...}: stiffness [N/m] and damping [N s/m], each one value, two (along x and y), a matrix 2 x 2 with
%                  cross-coupling, or 4 x 4 with moments over x, y, thx, thy; or a function of the speed [rad/s] that gives one of these;
%                  or a table with two rows or more, [speed xx yy] or [speed xx xy yx yy], linear in between and refused beyond.
%                  That of K may also give a structure with "stiffness" and "damping" (qn.journal_coefficients); C adds to it.
%                  NODE is the number of a node, which is then held against the ground, or [node a b]: against the degrees of freedom
%                  a and b of the stator.
%     'seals'      {NODE, K, C, M; ...}: the same with an added mass [kg], symmetric and in no direction negative
%     'stator'     a structure with the fields M, K and perhaps C: what carries bearings and seals. It does not turn.
%     'speed'      speed of rotation [rad/s] that the matrices belong to; needed only where a bearing depends on it ([])
%
% Output
%   R   struct: M, K, C  n x n, with all bearings and seals; K and C may be unsymmetric. [] while a bearing depends on a speed that was
%                not given.
%                G       n x n, skew, per rad/s: W * G is added to C
%                N       n x n, per rad/s: W * N is added to K (circulatory, of 'internal'); zeros without
%                Ks      symmetric part of K from which qn.modal takes the modes; the rest of K it adds as a further stiffness
%                places  nodes x 4: numbers of the degrees of freedom x, y, thx, thy
%                stator  numbers of those of the stator
%                nodes   positions of the nodes [m]
%                speed   as given
%                parts   what it was made of
%
% Errors
%   qn:input  something is missing, unknown, of the wrong size or no finite real number; G is not skew, M not symmetric; a node or a
%             degree of freedom is not there; an inertia is not that of a body; a matrix of R was changed
%
% Source
%   H. D. Nelson, J. Mechanical Design 102, 1980; E. S. Zorzi and H. D. Nelson, J. Engineering for Power 99, 1977; M. I. Friswell,
%   J. E. T. Penny, S. D. Garvey and A. W. Lees, Dynamics of Rotating Machines, 2010
%
% Example
%   r = qn.rotor ('nodes', 0:0.25:1.5, 'outer', 0.05, 'cylinders', [3 0.07 0.28 0.05 7810; 5 0.07 0.35 0.05 7810], ...
%                 'bearings', {1, 1e6, 100; 7, 1e6, 100});
%   model = qn.modal (r, 'speed', 400);
%   whirl = sort (abs (imag (eig ([zeros(28), eye(28); -(r.M \ [r.K, r.C + 400 * r.G])]))));
%
% See also qn.campbell, qn.unbalance, qn.gravity, qn.modal
function r = rotor (varargin)
  who = 'qn.rotor';
  if nargin > 0 && isstruct (varargin{1})
    r = varargin{1};
    if ~isfield (r, 'parts') || ~isfield (r, 'places')
      error ('qn:input', '%s: the structure is no result of qn.rotor; see help %s', who, who);
    end
    o = qn.impl.options (who, struct ('speed', '<required>'), varargin(2:end));
    o.speed = qn.impl.scalar (who, 'speed', o.speed);
    qn.impl.rotor.own_fields (who, r);
    qn.impl.rotor.unchanged (who, r);
    r = qn.impl.rotor.at_speed (r, o.speed);
    return
  end
  o = struct ('nodes', [], 'shaft', [], 'outer', [], 'inner', 0, 'young', 2.1e11, 'density', 7850, 'poisson', 0.3, 'shear', true, ...
              'internal', 0, 'disks', [], 'cylinders', [], 'bearings', {{}}, 'seals', {{}}, 'stator', [], 'speed', []);
  o = qn.impl.options (who, o, varargin);
  if ~isempty (o.shaft), of_nodes_alone (who, varargin(1:2:end)); end
  if isempty (o.nodes) == isempty (o.shaft), error ('qn:input', '%s: give "nodes" or "shaft", one of them', who); end
  if ~isempty (o.speed), o.speed = qn.impl.scalar (who, 'speed', o.speed); end
  r = qn.impl.rotor.shaft (who, o);
  r = qn.impl.rotor.disks (who, r, o);
  n = size (r.M, 1);
  r.stator = [];
  if ~isempty (o.stator)
    for field = 'GN'
      if isstruct (o.stator) && isfield (o.stator, field) && any (any (o.stator.(field)))
        error ('qn:input', '%s: "stator" does not turn, it has no %s', who, field);
      end
    end
    s = qn.impl.rotor.matrices (who, 'stator', o.stator);
    qn.impl.rotor.known_fields (who, 'stator', o.stator, {'M', 'K', 'C', 'G', 'N'});
    r.stator = n + (1:size (s.M, 1));
    for field = 'MKCGN', r.(field) = blkdiag (r.(field), s.(field)); end
  end
  beside = norm (r.K - r.K.', 'fro') / norm (r.K, 'fro');
  if beside > 1e-6
    error ('qn:input', ['%s: K of shaft and stator must be symmetric, K - K.'' is %.2g of it; cross-coupling of bearings belongs into ' ...
                        '"bearings"'], who, beside);
  end
  list = [qn.impl.rotor.supports(who, 'bearings', o.bearings, r), qn.impl.rotor.supports(who, 'seals', o.seals, r)];
  r.parts = struct ('M', r.M, 'K', r.K, 'C', r.C, 'supports', list);
  turning = false;
  for s = list
    for field = 'KCM', turning = turning || isa (s.(field), 'function_handle'); end
  end
  r.parts.by_speed = turning;
  r.parts.speed = [];
  if turning && isempty (o.speed)
    for field = {'M', 'K', 'C', 'Ks', 'speed'}, r.(field{1}) = []; end
  else
    r = qn.impl.rotor.at_speed (r, o.speed);
  end
end

% What describes beams between "nodes" says nothing about the matrices of a "shaft".
function of_nodes_alone (who, names)
  for name = {'outer', 'inner', 'young', 'density', 'poisson', 'shear'}
    if any (strcmpi (name{1}, cellfun (@qn.impl.chars, names, 'UniformOutput', false)))
      error ('qn:input', '%s: "%s" describes beams between "nodes"; the matrices of "shaft" stay what they are', who, name{1});
    end
  end
end
