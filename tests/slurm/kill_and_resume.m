% A sweep whose first process is killed, and one that does not wait, find their job array again:
%   octave-cli kill_and_resume.m MODULE_FOLDER FOLDER
args = argv ();
here = make_absolute_filename (fileparts (mfilename ('fullpath')));
folders = {fullfile(here, '..', '..', 'toolbox'), make_absolute_filename(args{1}), fullfile(here, '..', 'octave', 'support')};
cellfun (@addpath, folders);
folder = args{2};
mkdir (folder);
sweep = sprintf ('qn.sweep (@(p) sweep_logged (p, ''%s''), 1:4, ''engine'', ''slurm'', ''folder'', ''%s'', ''workers'', 1', folder, folder);
code = [sprintf('addpath (''%s''); ', folders{:}), sweep, ');'];
[~, pid] = system (sprintf ('octave-cli --no-history -qf --eval "%s" >/dev/null 2>&1 & echo $!', code));
file = fullfile (folder, 'slurm_job.txt');
for k = 1:300
  if exist (file, 'file') && ~isempty (fileread (file)), break, end
  pause (0.1);
end
kill (str2double (pid), 9);
first = fileread (file);
[got, report] = eval ([sweep, ', ''wait'', false);']);
if report.waiting + sum (report.done) ~= 4 || report.waiting == 0, error ('%d cases are waiting', report.waiting); end
expect_equal (numel (report.failed), 0);
[got, report] = eval ([sweep, ');']);
expect_equal (got, {1, 4, 9, 16});
expect_equal (fileread (file), first);
expect_equal (numel (dir (fullfile (folder, 'ran_*'))), 4);
fprintf ('ok      later calls find the job array of a killed process, and no case ran twice\n');
