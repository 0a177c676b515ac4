% Benchmarks that need the host: its own operators, the cost of a call.
%
%   octave-cli --no-history -qf bench/octave/run_bench.m OUT.json MODULE_DIR KERNELS.json [--quick]
%
% KERNELS.json is what quarn_bench wrote: the references of the differential equations and the module's share of a call come from there.
% Ends with status 1 where programs that are compared computed different numbers.
args = argv ();
here = fileparts (mfilename ('fullpath'));
addpath (here);
addpath (fullfile (here, '..', '..', 'toolbox'));
addpath (args{2});                                       % before the toolbox, which has the module's help
addpath (fullfile (here, '..', '..', 'tests', 'octave', 'support'));
quick = numel (args) > 3 && strcmp (args{4}, '--quick');
reference = jsondecode (fileread (args{3}));
if ~iscell (reference), reference = num2cell (reference); end
notes = [newmark_bench(quick), demo_bench(quick), product_bench(quick), projection_bench(quick), call_bench(quick), ...
         call_parts(quick, reference), toolbox_bench(quick)];
solved = equation_bench (quick, reference);
out = fopen (args{1}, 'w');
lines = cellfun (@jsonencode, [num2cell(notes), num2cell(solved)], 'UniformOutput', false);
fprintf (out, '[%s]\n', strjoin (lines, sprintf (',\n')));
fclose (out);
wrong = [notes.difference] > [notes.tolerance];
for k = find (wrong)
  fprintf (2, 'DIFFERENT NUMBERS: %s/%s/%d: %s is off by %g\n', notes(k).group, notes(k).variant, notes(k).size, notes(k).program, ...
           notes(k).difference);
end
if any (wrong), exit (1); end
