% Checks the documents against the sources and against each other (see document_problems.m):
%   octave-cli --no-history -qf check_documents.m
here = make_absolute_filename (fileparts (mfilename ('fullpath')));
addpath (fullfile (here, 'support'), fullfile (here, 'support', 'documents'));
[problems, counts] = document_problems (fullfile (here, '..', '..'));
fprintf ('%d documents, %d command words, %d law keywords, %d handle types, %d error texts, %d relative links\n', counts);
for k = 1:numel (problems), fprintf ('FAILED  %s\n', problems{k}); end
if ~isempty (problems), exit (1); end
