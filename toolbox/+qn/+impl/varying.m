% PARTS = VARYING (SIM)  modal matrices of a set-up that change with time: type (1 stiffness, 3 damping), matrix (m x m) and factor
%
% FACTOR is 2 x n, times above values, linear in between; two equal times are a jump. Nothing where all is constant. What a table by speed
% holds comes as few matrices: those of its singular values, each with a factor that goes through the speeds of the table.
function parts = varying (sim)
  parts = struct ('type', {}, 'matrix', {}, 'factor', {});
  if qn.impl.runs_up (sim), parts = turning (sim); end
  if isfield (sim, 'varying'), parts = [parts, sim.varying]; end
end

% Those of a run-up.
function parts = turning (sim)
  r = sim.model.rotation;
  parts = struct ('type', 3, 'matrix', r.G, 'factor', sim.speed);
  if ~isempty (r.K)
    % The slope jumps at every knot between two segments.
    n = size (sim.speed, 2) - 1;
    slopes = diff (sim.speed(2, :)) ./ diff (sim.speed(1, :));
    table = [sim.speed(1, floor((1:2 * n) / 2) + 1); slopes(ceil ((1:2 * n) / 2))];
    parts(end + 1) = struct ('type', 1, 'matrix', r.K, 'factor', table);
  end
  if qn.impl.circulates (r), parts(end + 1) = struct ('type', 1, 'matrix', r.N, 'factor', sim.speed); end
  if ~qn.impl.by_speed (r), return, end
  parts = [parts, of_table(sim, 1, r.table.K), of_table(sim, 3, r.table.C)];
end

% PAGES are the matrices of the speeds of the table.
function parts = of_table (sim, type, pages)
  parts = struct ('type', {}, 'matrix', {}, 'factor', {});
  m = size (pages, 1);
  [u, s, v] = svd (reshape (pages, m * m, []), 'econ');
  s = diag (s);
  for k = find (s.' > 1e-14 * max (s))
    values = interp1 (sim.model.rotation.table.speed, v(:, k).', sim.speed(2, :), 'linear', 'extrap');
    parts(end + 1) = struct ('type', type, 'matrix', s(k) * reshape (u(:, k), m, m), 'factor', [sim.speed(1, :); values]);
  end
end
