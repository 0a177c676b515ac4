% Cost of a nonlinear element in the residual command: a law as a function handle against a law computed inside.
%
%   octave-cli --no-history -qf bench/residual_callbacks.m MODULE_DIR
%
% Prints nanoseconds per element: the time of a call with 10 elements less that of a call without elements, divided by 10, best of
% 15 rounds.
args = argv ();
addpath (args{1});
function ns = per_call (elements)
  u = [0.3; 0.1; -0.2; 0.05; 0.4];
  r = zeros (5, 1);
  NL = cell (numel (elements), 3);
  NL(:, 3) = elements;
  model = struct ('K', {cell(1, 3)}, 'NL', {NL});
  rounds = 15;
  calls = 2000;
  ns = Inf;
  for round = 1:rounds
    tic;
    for k = 1:calls, quarn ('residual', r, model, u, u, [], [], []); end
    ns = min (ns, 1e9 * toc / calls);
  end
end

dofs = cell (10, 2);
dofs(1:8, 2) = {1, eye(3), [0.5; 0; 0], [0; 0; 0], [2 3], [1 2], [4 5], [1 2]};
dofs{10, 2} = [0; 0.5; 0];
table = [-1 -40; 0 0; 1 40];
unit = struct ('pr', ones (5, 1), 'ir', int32 ((0:4)'), 'jc', int32 ((0:5)'), 'dims', [5 5], 'trans', 1);
built = struct ('type', 'rotcenter', 'Cell', {dofs}, 'Fu', table, 'Fv', table, 'cur_u', zeros (3, 1), 'cur_v', zeros (3, 1));
handle = struct ('Fu', @(e, r, model, u, v, a, opt, extra) u, 'b', unit, 'StoreFNL', 0);
observed = struct ('Fu', @(e, r, model, u, v, a, opt, extra) 2 * e.unl, 'b', unit, 'c', unit, 'unl', zeros (5, 1), 'StoreFNL', 0);
empty = per_call (cell (0, 1));
fprintf ('call without elements         %8.0f ns\n', empty);
fprintf ('rotcenter                     %8.0f ns per element\n', (per_call (repmat ({built}, 10, 1)) - empty) / 10);
fprintf ('function handle               %8.0f ns per element\n', (per_call (repmat ({handle}, 10, 1)) - empty) / 10);
fprintf ('function handle, with unl     %8.0f ns per element\n', (per_call (repmat ({observed}, 10, 1)) - empty) / 10);
