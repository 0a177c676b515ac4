% What a law of the user's costs in the integrator beside a built-in one, microseconds a step with 20 modes (docs/user_laws.md).
%
%   octave-cli --no-history -qf --path build/release/module bench/octave/user_laws.m
here = fileparts (mfilename ('fullpath'));
addpath (fullfile (here, '..', '..', 'toolbox'));
folder = tempname ();
mkdir (folder);
put = @(name, body, counts) fprintf (fopen (fullfile (folder, name), 'w'), ...
  '#include "quarn_law.h"\nstatic void law(const quarn_step* now, double* force, double* state) {\n%s\n}\nQUARN_LAW(law, %s)\n', body, counts);
put ('cubic.c', 'const double x = now->x[0]; force[0] = now->p[0] * x * x * x;', '1, 1, 0');
put ('bearing.c', ['const double* p = now->p; const double* x = now->x; force[0] = p[0] * x[0] + p[1] * x[1]; ' ...
                   'force[1] = p[2] * x[0] + p[3] * x[1];'], '2, 4, 0');
fclose ('all');
m = 20;
model = qn.modal (1e4 * (2 * eye (m) - diag (ones (m - 1, 1), 1) - diag (ones (m - 1, 1), -1)), eye (m), 'damping', 0.02);
row = qn.observe (model, 7);
rows = qn.observe (model, [7 8]);
spring = @(k) qn.law ('power', 'stiffness', k, 'exponent', 1);
k = [3e4 1e4; -1e4 3e4];
sets = {'cubic, built in', {qn.cubic('stiffness', 1e7), row}, 4e5
        'cubic, compiled', {qn.law('compiled', fullfile (folder, 'cubic.c'), 'parameters', 1e7), row}, 4e5
        'cubic, function', {qn.law('function', @(x, v, s, t) 1e7 * (x * x * x)), row}, 1e4
        'bearing, four springs', {spring(k(1, 1)), row, []; spring(k(2, 2)), rows(2, :), []; spring(k(1, 2)), rows(2, :), row; ...
                                  spring(k(2, 1)), row, rows(2, :)}, 4e5
        'bearing, compiled', {qn.law('compiled', fullfile (folder, 'bearing.c'), 'parameters', reshape (k.', [], 1), 'rows', 2), rows}, 4e5
        'bearing, function', {qn.law('function', @(x, v, s, t) k * x, 'rows', 2), rows}, 1e4};
seconds = zeros (5, size (sets, 1));
for round = 1:5
  for j = 1:size (sets, 1)
    n = sets{j, 3};
    sim = qn.simulation (model, 'step', 1e-4, 'steps', n, 'every', 1000, 'load', {qn.load_at(model, 3), @(t) 50 * sin(80 * t)}, ...
                         'elements', sets{j, 2});
    seconds(round, j) = getfield (qn.run (sim, 'progress', false, 'check', false, 'piece', n), 'seconds') / n;
  end
end
for j = 1:size (sets, 1), fprintf ('%-24s %8.3f us\n', sets{j, 1}, 1e6 * median (seconds(:, j))); end
confirm_recursive_rmdir (false);
rmdir (folder, 's');
