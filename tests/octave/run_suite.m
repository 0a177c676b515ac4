% Runs suites with octave-cli and ends it with a status (see run_suites.m, which works in MATLAB as well):
%   octave-cli --no-history -qf run_suite.m SUITE[,SUITE...]|all MODULE_DIR [PATTERN] [--junit FILE] [--suites FOLDER] [--stop]
args = argv ();
options = struct ();
for flag = {'junit', 'suites'}
  at = find (strcmp (args, ['--' flag{1}]), 1);
  if isempty (at), continue, end
  options.(flag{1}) = args{at + 1};
  args(at:at + 1) = [];
end
options.stop = any (strcmp (args, '--stop'));
args(strcmp (args, '--stop')) = [];
suites = strsplit (args{1}, ',');
if strcmp (args{1}, 'all'), suites = {}; end
options.module = args{2};
if numel (args) > 2, options.pattern = args{3}; end
addpath (fileparts (mfilename ('fullpath')));
counts = run_suites (suites, options);
if counts.failed > 0 || isempty (counts.tests), exit (1); end
