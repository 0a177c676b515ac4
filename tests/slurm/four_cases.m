% A sweep of four cases as a job array has the results of the serial one: octave-cli four_cases.m MODULE_FOLDER FOLDER
args = argv ();
here = make_absolute_filename (fileparts (mfilename ('fullpath')));
addpath (fullfile (here, '..', '..', 'toolbox'));
addpath (make_absolute_filename (args{1}));
addpath (fullfile (here, '..', 'octave', 'support'));
cases = qn.grid ('gap', [1e-3 2e-3], 'stiffness', [1e5 1e6]);
wanted = qn.sweep (@sweep_oscillator, cases, 'engine', 'serial');
% A name that shells and scripts stumble over.
folder = [args{2} ' it''s'];
[got, report] = qn.sweep (@sweep_oscillator, cases, 'engine', 'slurm', 'folder', folder);
if ~isequal (got, wanted) || ~all (report.done(:)), error ('the results differ'); end
expect_equal (report.ran, 4);
expect_equal (report.engine, 'slurm');
logs = dir (fullfile (folder, 'slurm_*_*.txt'));
expect_equal (numel (logs), 4);
fprintf ('ok      four cases as a job array have the bits of the serial run, in %.1f s\n', report.seconds);

% An error, a process that dies, and a change of mind.
f = @(p) sweep_trouble (p, pwd ());
folder = [args{2} '_trouble'];
[got, report] = qn.sweep (f, 1:4, 'engine', 'slurm', 'folder', folder, 'workers', 1, 'progress', false);
expect_equal (report.done, [true false false true]);
expect_equal ([report.failed.number], [2 3]);
expect_equal ({report.failed.identifier}, {'sweep:trouble', 'qn:lost'});
fid = fopen ('mended', 'w');
fclose (fid);
[got, report] = qn.sweep (f, 1:4, 'engine', 'slurm', 'folder', folder, 'again', true, 'progress', false);
expect_equal (got, {10, 20, 30, 40});
expect_equal (report.ran, 2);
fprintf ('ok      failed and lost cases are reported and run again\n');

% More cases than tasks are shared among the tasks.
folder = [args{2} '_shared'];
job = qn.impl.sweep.job (@(p) 2 * p, 1:7, folder, struct ('progress', false, 'trust', false));
job.tasks = {[1 4 7], [2 5]};
work = fullfile (folder, 'slurm_work.bin');
digest = qn.impl.sweep.pack (job, work);
qn.impl.sweep.task (work, digest, 2);
expect_equal (find (qn.impl.sweep.state (job)), [2 5]);
qn.impl.sweep.task (work, digest, 1);
expect_equal (find (qn.impl.sweep.state (job)), [1 2 4 5 7]);
fprintf ('ok      cases are shared among tasks\n');
