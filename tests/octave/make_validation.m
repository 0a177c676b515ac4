% Writes docs/validation.md from the tests: octave-cli --no-history -qf make_validation.m MODULE_DIR
args = argv ();
here = make_absolute_filename (fileparts (mfilename ('fullpath')));
addpath (make_absolute_filename (args{1}));
addpath (fullfile (here, 'support'));
addpath (fullfile (here, 'models'));
addpath (genpath (fullfile (here, 'suites')));
warning ('off', 'Octave:classdef-to-struct');
lines = validation_text (validation_records ());
file = fullfile (here, '..', '..', 'docs', 'validation.md');
id = fopen (file, 'w');
fprintf (id, '%s\n', lines{:});
fclose (id);
fprintf ('docs/validation.md: %s\n', lines{~cellfun (@isempty, regexp (lines, '^\d+ cases'))});
