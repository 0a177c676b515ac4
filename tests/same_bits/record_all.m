% Runs all cases and writes every call with its results: octave-cli --no-history -qf record_all.m MODULE_DIR FILE
args = argv ();
here = fileparts (mfilename ('fullpath'));
addpath (make_absolute_filename (args{1}), here, fullfile (here, '..', 'octave', 'support'));
warning ('off', 'Octave:classdef-to-struct');
rand ('twister', 42);
randn ('twister', 42);
id = fopen (args{2}, 'w');
law_cases (id);
residual_cases (id);
integrator_cases (id);
matrix_cases (id);
fprintf (id, 'end\n');
fclose (id);
