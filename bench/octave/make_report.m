% Makes results.json, report.md and the pictures of a run: octave-cli -qf make_report.m OUT_DIR
args = argv ();
out = args{1};
addpath (fileparts (mfilename ('fullpath')));
records = [read_records(fullfile (out, 'kernels.json')), read_records(fullfile (out, 'host.json'))];
machine = strtrim (fileread (fullfile (out, 'machine.txt')));
f = fopen (fullfile (out, 'results.json'), 'w');
fprintf (f, '%s\n', jsonencode (struct ('machine', machine, 'results', {records})));
fclose (f);
f = fopen (fullfile (out, 'report.md'), 'w');
fprintf (f, '# Benchmark report\n\n%s\n', regexprep (machine, '(?m)$', '  '));
groups = {'product', 'host product', 'modes', 'newmark', 'demo', 'gain', 'handles', 'modal elements', 'laws', 'tables', 'projections', 'calls'};
for g = 1:numel (groups), report_group (f, groups{g}, records); end
report_equations (f, records);
for g = {'guards', 'call parts', 'toolbox parts', 'toolbox sweep', 'toolbox calls'}
  fprintf (f, '\n## %s\n\n%s', g{1}, parts_table (records, g{1}));
end
fclose (f);
graphics_toolkit ('gnuplot');
plot_group (out, 'product', '27', 'lines', 'ns per byte', records);
plot_group (out, 'modes', 'modes', 'modes', 'ns per mode and step', records);
plot_group (out, 'modes', 'steps, 100 modes', 'steps', 'ns per step', records);
plot_group (out, 'handles', 'elements', 'elements', 'ns per element and step', records);
plot_group (out, 'handles', 'cubic springs', 'handles', 'ns per handle and step', records);
plot_group (out, 'tables', 'random queries', 'knots', 'ns per query', records);
plot_equations (out, records);
