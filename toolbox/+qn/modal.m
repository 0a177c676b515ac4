% QN.MODAL  modal model of a structure: the coordinates in which quarn integrates
%
% Purpose
%   Solves K x = w^2 M x for the lowest modes, scales them to a modal mass of 1 kg and adds damping. A model with one degree of
%   freedom is given by its stiffness and mass.
%
% Calls
%   MODEL = qn.modal (K, M, ...)
%   MODEL = qn.modal (S, ...)
%   MODEL = qn.modal (R, 'speeds', W, ...)
%
% Input
%   K, M   stiffness [N/m] and mass [kg], n x n, symmetric, K without negative eigenvalues, M positive definite; or with rows of
%          zeros for degrees of freedom without mass. Those follow the others statically, which is exact where no load and no
%          element acts on them: what acts there directly also bends them, and that no mode holds.
%   S      structure with the fields K, M and, where there are such, C, G, N, speed: a physical model. Of a rotor of qn.rotor the modes are
%          those of M and the symmetric part Ks; the rest of K is treated like 'K'. Its "speed" is that of qn.rotor, not one set by hand
%          where bearings depend on it.
%   R      from qn.rotor, with bearings that depend on the speed
%   W      ascending speeds [rad/s] at which they are formed, for run-ups: linear in between, and refused beyond. Knots of tables are
%          added to them. The modes are those at the middle one; the model by itself is that of the speed of R, or of the first. The
%          warning qn:modal says where the bearings leave the line between two of them by more than 1 %.
%   Names and values
%     'modes'     how many modes to keep (all, at most 200)
%     'damping'   modal damping ratios, one for all or one per mode, 1 being critical (0)
%     'rayleigh'  [alpha beta]: damping matrix alpha*M + beta*K [1/s, s]; see qn.rayleigh
%     'C'         damping matrix [N s/m], any real n x n: dashpots, bearings
%     'G'         gyroscopic matrix [kg m^2 or kg m, whatever times 'speed' gives N s/m], n x n, skew (G.' = -G)
%     'speed'     speed of rotation [rad/s] that belongs to 'G': the damping gets speed*G. For a run-up it is 0 here, and 'speed' of
%                 qn.simulation says how the speed changes
%     'N'         circulatory matrix [N/m per rad/s], any real n x n: the stiffness gets speed*N. Damping C that turns with the shaft
%                 has N = C*J, J taking x to y and y to -x
%     'by_speed'  {SPEED, K, C; ...}: further stiffness [N/m] and damping [N s/m] (n x n, [] for none) at ascending speeds [rad/s], linear
%                 in the speed in between; speeds beyond are refused
%     'KG'        matrix that times the angular acceleration is a stiffness [kg m^2], any real n x n: it acts in run-ups alone. Where
%                 slopes are measured in a fixed frame, it is the part of G that the derivative of the spin's moment leaves
%     'K'         further stiffness [N/m], any real n x n: bearings, with cross terms that differ. The modes stay those of K and M
%                 alone; this one may couple them. What pushes away from rest (the weight of an upright pendulum) belongs here.
%                 C, G and K are projected onto the modes. Where that leaves more than rounding beside the diagonal, the full
%                 modal matrix is kept, and integrated implicitly as it is (a matrix gain, see docs/theory.md).
%     'method'    'auto': eigs for sparse matrices with more than 250 degrees of freedom and up to a quarter of the modes, where it
%                 is faster, else eig; 'eig' (dense) or 'eigs' (sparse). Modes of eigs are checked: residuals, orthogonality, and
%                 that none was left out; if in doubt 'auto' takes eig ('auto')
%     'attach'    where stiff elements or point loads will act: numbers of degrees of freedom, or load shapes, n values per column or
%                 row. The static responses to unit forces there that the modes do not hold are added as further, orthogonal
%                 shapes after the modes, so that the flexibility at those places is exact (Rubin 1975; docs/theory.md). On a
%                 structure that is free to move they are responses with inertia relief; its rigid motions must be among the
%                 modes. With one damping ratio per mode they take the last one.
%   The dampings add up. Keep all modes that C, G or K need to move as they push: what is not in the modes is rigid.
%
% Output
%   MODEL  struct: shapes     n x m, one mode per column [1/sqrt(kg)]
%                  w          m x 1 angular frequencies [rad/s]; 0 where a shape strains K by less than 1e-13 of what its entries add
%                             up to without their signs: a rigid motion, to rounding. qn.check notes what may be a soft support.
%                  hertz      m x 1 frequencies [Hz]
%                  stiffness  m x 1, w.^2 [1/s^2], or m x m where 'K' couples the modes
%                  damping    m x 1, 2*zeta*w [1/s], or m x m where 'C' or 'G' couples them
%                  M          the mass matrix, for base motion and initial states [kg]
%                  K          the stiffness matrix, with which qn.check finds what flexibility the modes leave out [N/m]
%                  attached   number of shapes that are not modes: the last ones, from 'attach'
%                  rotation   [] where nothing depends on the speed, else struct: G, K and N (modal; K is [] without 'KG', N without 'N'),
%                             table (modal 'by_speed', or []), speed, and damping and stiffness without all these; of a rotor of
%                             qn.rotor also its places, which qn.unbalance needs
%                  m counts them too.
%
% Errors
%   qn:input  sizes do not fit, K or M is not symmetric (to 1e-6 of its greatest entry), the mass is not positive
%             definite, K has a negative eigenvalue beyond the rounding of a rigid motion (from 1e-10 to 1e-6 of its entries it is
%             taken for 0 with the warning qn:modal), a damping is negative or not a number, G is not skew or comes without a speed,
%             KG comes without G; the places of 'attach' are none, a static response does not exist, what has no mass is not held, or
%             stiffness over mass or a modal value is beyond all numbers
%   qn:eigs   with 'eigs' a mode was left out or is inaccurate
%
% Source
%   L. Meirovitch, Computational Methods in Structural Dynamics, 1980; for rotors G. Genta, Dynamics of Rotating Systems, 2005
%
% Example
%   k = 1e6 * [2 -1; -1 1];
%   model = qn.modal (k, 3 * eye (2), 'damping', 0.02);
%   model.hertz
%   rotor = qn.modal (4e6 * eye (2), 3 * eye (2), 'G', [0 1; -1 0] * 0.1, 'speed', 300, 'K', [0 2e5; -2e5 0], 'C', 100 * eye (2));
%
% See also qn.observe, qn.load_at, qn.base, qn.rayleigh, qn.simulation
function model = modal (varargin)
  who = 'qn.modal';
  if nargin > 0 && isstruct (varargin{1})
    s = varargin{1};
    if ~isfield (s, 'K') || ~isfield (s, 'M'), error ('qn:input', '%s: the model needs the fields K and M', who); end
    args = qn.impl.structure (who, s, varargin(2:end));
  else
    args = varargin;
  end
  if numel (args) < 2, error ('qn:input', '%s: stiffness and mass expected; see help qn.modal', who); end
  k = args{1};
  m = args{2};
  n = size (k, 1);
  k = qn.impl.numbers (who, 'K', k, [NaN NaN]);
  m = qn.impl.numbers (who, 'M', m, [NaN NaN]);
  if ~isequal (size (k), [n n]) || ~isequal (size (m), [n n]) || n == 0
    error ('qn:input', '%s: square matrices of one size expected, got K %s and M %s', who, mat2str (size (k)), mat2str (size (m)));
  end
  symmetric (who, 'K', k);
  symmetric (who, 'M', m);
  o = struct ('modes', min (n, 200), 'damping', 0, 'rayleigh', [0 0], 'C', [], 'G', [], 'speed', [], 'K', [], 'method', 'auto', ...
              'attach', [], 'KG', [], 'N', [], 'by_speed', []);
  o = qn.impl.options (who, o, args(3:end));
  o.modes = qn.impl.count (who, 'modes', o.modes);
  count = min (o.modes, n);
  [phi, w] = qn.impl.modes (k, m, count, o.method);
  count = numel (w);
  if ~isnumeric (o.damping)
    error ('qn:input', '%s: "damping" is a number such as 0.02 for 2 %% of critical damping, got class %s', who, class (o.damping));
  end
  ratios = count;
  if numel (o.damping) == 1, ratios = 1; end
  o.damping = qn.impl.numbers (who, 'damping', o.damping, ratios, 'from', 0, 'each', 'one ratio for all or one a mode');
  o.rayleigh = qn.impl.numbers (who, 'rayleigh', o.rayleigh, 2, 'each', '[alpha beta]');
  attached = 0;
  if ~isempty (o.attach), [phi, w, attached] = qn.impl.attach (k, m, phi, w, o.attach); end
  if numel (o.damping) > 1, o.damping = [o.damping(:); repmat(o.damping(end), attached, 1)]; end
  damping = 2 * o.damping(:) .* w + o.rayleigh(1) + o.rayleigh(2) * w .^ 2;
  damping = qn.impl.with_matrix (damping, who, phi, 'C', o.C);
  stiffness = qn.impl.with_matrix (w .^ 2, who, phi, 'K', o.K);
  [damping, stiffness, rotation] = qn.impl.with_rotation (damping, stiffness, who, phi, o);
  if nargin > 0 && isstruct (varargin{1}) && all (isfield (varargin{1}, {'parts', 'places'})) && ~isempty (rotation)
    rotation.places = varargin{1}.places;
  end
  model = struct ('shapes', phi, 'w', w, 'hertz', w / (2 * pi), 'stiffness', stiffness, 'damping', damping, 'M', m, ...
                  'K', k, 'attached', attached, 'rotation', rotation);
  qn.impl.finite_model (who, model);
end

function symmetric (who, name, x)
  beside = full (max (abs (nonzeros (x - x.'))));
  share = beside / full (max (abs (nonzeros (x))));
  if share > 1e-6
    error ('qn:input', '%s: %s is not symmetric: %s differs from its transpose by %.2g of its greatest entry', who, name, name, share);
  end
end
