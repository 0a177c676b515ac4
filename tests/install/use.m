% Works with the copy installed in the folder INSTALLED: one addpath is all.
folder = getenv ('INSTALLED');
addpath (folder);
assert (strcmp (which ('quarn'), fullfile (folder, 'quarn.mex')), 'quarn is %s', which ('quarn'));
assert (quarn () == 1.0001);
assert (~isempty (strfind (evalc ('help quarn'), 'kernels of structural-dynamics time simulation')));
fprintf ('ok      module and help\n');
used = install_quarn ();
assert (strcmp (used, folder));
qn.selftest ();

% A cut run continues with the same bits, through files in the installed copy only.
model = qn.modal (4e4, 1, 'damping', 0.01);
stop = {qn.gap('gap', 0.002, 'stiffness', 1e6), qn.observe(model, 1)};
set_up = {'step', 1e-4, 'load', {qn.load_at(model, 1), @(t) 200 * sin (150 * t)}, 'elements', stop};
whole = qn.run (qn.simulation (model, 'until', 0.2, set_up{:}), 'progress', false);
first = qn.run (qn.simulation (model, 'until', 0.1, set_up{:}), 'progress', false);
second = qn.run (qn.simulation (model, 'until', 0.2, 'start', first, set_up{:}), 'progress', false);
assert (any (whole.force(:)));
assert (isequal (whole.q(:, end), second.q(:, end)));
files = which ('qn.run');
assert (strncmp (files, folder, numel (folder)));
fprintf ('ok      a simulation in two parts\n');
