% [R, FU] = MODEL_ROTCENTER (E, U, V)  residual contribution of a rotating link element, and the force on point B
%
% Written from the mechanics: point A turns with the rotation DOF, the elongation from A to B and its rate are looked up in the
% force tables componentwise, B gets the force, A the reaction turned back into the rotor's frame.
function [r, force] = model_rotcenter (e, u, v)
  cells = e.Cell(:, 2);
  m = numel (cells);
  turn = fix (cells{1}(1));
  t = u(turn);
  T = reshape (cells{2}(1:9), 3, 3) * [cos(t) -sin(t) 0; sin(t) cos(t) 0; 0 0 1];
  if m <= 14
    SA = selection (cells{5}, cells{6}, numel (u));
    SB = selection (cells{7}, cells{8}, numel (u));
  else
    SA = full_operator (cells{15});
    SB = full_operator (cells{17});
  end
  du = cells{4}(:) + SB * u - T * (cells{3}(:) + SA * u);
  dv = SB * v - T * (SA * v + v(turn) * cells{10}(:));
  force = zeros (3, 1);
  for k = 1:3
    force(k) = look_up (e.Fu, du(k)) + look_up (e.Fv, dv(k));
  end
  r = SB.' * force - SA.' * (T.' * force);
end

function S = selection (dofs, positions, n)
  S = zeros (3, n);
  for k = 1:numel (positions)
    S(fix (positions(k)), fix (dofs(k))) = 1;
  end
end

function M = full_operator (s)
  lines = numel (s.jc) - 1;
  M = zeros (s.dims(1), s.dims(2));
  for i = 1:lines
    for k = s.jc(i) + 1:s.jc(i + 1)
      M(i, s.ir(k) + 1) = M(i, s.ir(k) + 1) + s.pr(k);
    end
  end
end

% Linear interpolation between strictly ascending knots, the end segments extrapolating.
function y = look_up (table, x)
  if size (table, 1) == 1
    y = table(1, 2);
    return
  end
  k = find (table(1:end - 1, 1) <= x, 1, 'last');
  if isempty (k), k = 1; end
  y = table(k, 2) + (table(k + 1, 2) - table(k, 2)) * (x - table(k, 1)) / (table(k + 1, 1) - table(k, 1));
end
