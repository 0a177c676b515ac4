% [DAMPING, ROTATION] = WITH_ROTATION (DAMPING, WHO, PHI, O)  modal damping with that of the gyroscopic matrix, speed * G
%
% O holds the options G, speed and KG. ROTATION is what a run with another speed needs to know: G, K [modal], speed and the damping at
% standstill; [] without G.
function [damping, rotation] = with_rotation (damping, who, phi, o)
  rotation = [];
  n = size (phi, 1);
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
  rotation = struct ('G', qn.project (phi, g), 'K', [], 'speed', speed, 'damping', damping);
  if ~isempty (o.KG), rotation.K = qn.project (phi, qn.impl.numbers (who, 'KG', o.KG, [n n])); end
  damping = qn.impl.with_matrix (damping, who, phi, 'G', speed * g);
end
