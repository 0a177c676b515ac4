% [DAMPING, STIFFNESS, ROTATION] = WITH_ROTATION (DAMPING, STIFFNESS, WHO, PHI, O)  modal damping and stiffness with what depends on the speed
%
% O holds the options G, N, by_speed, speed and KG. ROTATION is what a run with another speed needs to know, [] where nothing depends on
% it: modal G, N and K (of KG; [] without), speed, damping and stiffness without these, and table: [] or a struct with speed and the
% modal stiffness K and damping C of by_speed, m x m for each speed.
function [damping, stiffness, rotation] = with_rotation (damping, stiffness, who, phi, o)
  rotation = [];
  n = size (phi, 1);
  if isempty (o.G) && ~(isempty (o.N) && isempty (o.by_speed)), o.G = zeros (n); end
  g = o.G;
  if isempty (g)
    name = {'speed', 'KG'};
    name = name(~[isempty(o.speed), isempty(o.KG)]);
    if isempty (name), return, end
    error ('qn:input', '%s: "%s" belongs to a gyroscopic matrix: give "G" as well', who, name{1});
  end
  speed = qn.impl.scalar (who, 'speed', o.speed);
  g = qn.impl.numbers (who, 'G', g, [n n]);
  beside = norm (g + g.', 'fro') / norm (g, 'fro');
  if beside > 1e-6
    error ('qn:input', '%s: "G" must be skew (G.'' = -G): its symmetric part is %.2g of it and belongs into "C"', who, beside / 2);
  end
  rotation = struct ('G', qn.project (phi, g), 'K', [], 'speed', speed, 'damping', damping, 'N', [], 'table', [], 'stiffness', stiffness);
  if ~isempty (o.KG), rotation.K = qn.project (phi, qn.impl.numbers (who, 'KG', o.KG, [n n])); end
  damping = qn.impl.with_matrix (damping, who, phi, 'G', speed * g);
  if ~isempty (o.N)
    rotation.N = qn.project (phi, qn.impl.numbers (who, 'N', o.N, [n n]));
    stiffness = qn.impl.with_matrix (stiffness, who, phi, 'N', speed * o.N);
  end
  if isempty (o.by_speed), return, end
  rotation.table = qn.impl.table_by_speed (who, phi, o.by_speed);
  [k, c] = qn.impl.bearings_at (rotation.table, speed, who);
  stiffness = qn.impl.matrix (stiffness) + k;
  damping = qn.impl.matrix (damping) + c;
end
