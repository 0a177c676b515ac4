% Runs the examples of one document: octave-cli --no-history -qf run_documents.m DOCUMENT MODULE_DIR
%
% An example is a fenced block of the language matlab. Each runs in a workspace of its own, in an empty folder, with the module and
% the toolbox on the path and no handle registered. A document fails when one of its examples raises an error. What is not meant to
% run is in a block of another language.
args = argv ();
here = make_absolute_filename (fileparts (mfilename ('fullpath')));
addpath (fullfile (here, '..', '..', 'toolbox'));
addpath (make_absolute_filename (args{2}));
addpath (fullfile (here, 'support', 'documents'));
warning ('off', 'Octave:classdef-to-struct');
blocks = document_blocks (args{1}, 'matlab');
folder = tempname ();
mkdir (folder);
cd (folder);
failed = 0;
for k = 1:numel (blocks)
  try
    quarn ('chandleclear');
    run_block (blocks(k).code);
    fprintf ('ok      example at line %d\n', blocks(k).line);
  catch err
    failed = failed + 1;
    fprintf ('FAILED  example at line %d\n        %s\n', blocks(k).line, strrep (err.message, char (10), [char(10) '        ']));
  end
end
cd (here);
confirm_recursive_rmdir (false);
rmdir (folder, 's');
if isempty (blocks)
  fprintf ('no examples in this document\n');
else
  fprintf ('%d examples, %d failed\n', numel (blocks), failed);
end
if failed > 0, exit (1); end
