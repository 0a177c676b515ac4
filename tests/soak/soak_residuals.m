% [NUMBERS, COUNT] = SOAK_RESIDUALS (COUNT, SHARE)  residual commands in all forms of a model
%
% The residuals are added up over the calls: every one of them shows in the result.
function [numbers, count] = soak_residuals (count, share)
  m = matrix_lines ([2 0.25 0; 0.25 3 0.5; 0 0.5 4]);
  c = matrix_lines ([0.1 0 0; 0 0.2 0.3; 0 0.3 0.1]);
  k = matrix_lines ([7 -2 1; -2 8 -3; 1 -3 9]);
  index = [quarn('chandleset', 2, m), quarn('chandleset', 3, c), quarn('chandleset', 1, k)];
  one = matrix_lines (3);
  stiffness = repeat ({[], [], one}, 1, 60000 * share);
  all = repeat ({m, c, k}, 3, 6000 * share);
  structure = repeat (struct ('K', {{m, c, k}}), 3, 3000 * share);
  nonlinear = repeat (nonlinear_model (k), 6, 1000 * share);
  handles = repeat (chandle (index), 3, 1500 * share);
  energies = zeros (2, 1);
  for j = 1:1000 * share
    [kinetic, potential] = quarn ('residual', zeros (3, 1), {m, c, k}, state (3, 7), state (3, 5), state (3, 3), [0.5 0.25]);
    energies = energies + [kinetic; potential];
  end
  for i = index, quarn ('chandleclear', i); end
  numbers = [stiffness; all; structure; nonlinear; handles; energies];
  commands = (60000 + 6000 + 3000 + 1000 + 1500 + 1000) * share;
  count.calls = count.calls + commands;
  count.evaluations = count.evaluations + commands + 2 * 1500 * share;   % three handles in each of 1500
end

function u = state (n, divisor)
  u = (1:n)' / divisor;
end

function r = repeat (model, n, times)
  r = zeros (n, 1);
  u = state (n, 7);
  v = state (n, 5);
  a = state (n, 3);
  opt = [0.5 0.25];
  for j = 1:times, quarn ('residual', r, model, u, v, a, opt); end
end

% A rotor link and a full stiffness in one model; the link moves six degrees of freedom.
function model = nonlinear_model (k)
  c = cell (11, 2);
  c(1:8, 2) = {1, eye(3), [0.5; 0; 0], [0; 0.25; 0], [2 3], [1 2], [4 5], [1 2]};
  c(10:11, 2) = {[0; 0.5; 0], int32([0 1 2])};
  e = struct ('type', 'rotcenter', 'Cell', {c}, 'Fu', [-1 -40; 0.25 3; 1 40], 'Fv', [-1 -3; 1 3], 'cur_u', zeros (3, 1), 'cur_v', zeros (3, 1));
  k = matrix_lines (blkdiag (full (lines_of (k)), eye (3)));
  model = struct ('K', {{[], [], k}}, 'FNL', zeros (3, 1), 'NL', {{'link', [], e}});
end

function a = lines_of (s)
  a = zeros (s.dims);
  for j = 1:s.dims(2)
    at = s.jc(j) + 1:s.jc(j + 1);
    a(s.ir(at) + 1, j) = s.pr(at);
  end
end
