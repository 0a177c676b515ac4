% Checks the documents against the sources and against each other: octave-cli --no-history -qf check_documents.m [ROOT]
%
%   - every command word of the command table has a section under docs, and a line in the table of docs/commands.md
%   - every law keyword of the law table has a section in docs/laws.md or docs/laws
%   - every defined error text and identifier of the sources stands in docs/commands.md
%   - every relative link and image leads to a file, and every #anchor to a heading of it
args = argv ();
here = make_absolute_filename (fileparts (mfilename ('fullpath')));
addpath (fullfile (here, 'support', 'documents'));
root = fullfile (here, '..', '..');
if ~isempty (args), root = make_absolute_filename (args{1}); end

index = fullfile (root, 'docs', 'commands.md');
documents = find_files (fullfile (root, 'docs'), '\.md$');
for name = {'README.md', 'CHANGELOG.md', 'CONTRIBUTING.md'}
  documents{end + 1} = fullfile (root, name{1});
end
problems = {};

words = table_words (fullfile (root, 'src', 'gateway', 'command_table.cpp'), '{"([^"]+)", command');
keywords = table_words (fullfile (root, 'src', 'nonlinear', 'law_table.cpp'), 'row\("([^"]+)"');
listed = fileread (index);
headings = headings_of (documents(strncmp (documents, fullfile (root, 'docs', 'commands'), numel (fullfile (root, 'docs', 'commands')))));
for k = 1:numel (words)
  if ~any (strcmp (headings, words{k})), problems{end + 1} = sprintf ('command "%s" has no section under docs/commands', words{k}); end
  if isempty (strfind (listed, ['| [`' words{k} '`](']))
    problems{end + 1} = sprintf ('command "%s" has no line in docs/commands.md', words{k});
  end
end
headings = headings_of (documents(strncmp (documents, fullfile (root, 'docs', 'laws'), numel (fullfile (root, 'docs', 'laws')))));
for k = 1:numel (keywords)
  if ~any (strcmp (headings, keywords{k})), problems{end + 1} = sprintf ('law "%s" has no section in docs/laws.md', keywords{k}); end
end

texts = error_texts (fullfile (root, 'src'));
for k = 1:numel (texts)
  if isempty (strfind (listed, texts{k})), problems{end + 1} = sprintf ('error text "%s" is not in docs/commands.md', texts{k}); end
end

n_links = 0;
for k = 1:numel (documents)
  links = document_links (documents{k});
  n_links = n_links + numel (links);
  for m = 1:numel (links)
    if ~link_leads_somewhere (documents{k}, links{m}), problems{end + 1} = sprintf ('%s: dead link %s', documents{k}, links{m}); end
  end
end

fprintf ('%d documents, %d command words, %d law keywords, %d error texts, %d relative links\n', numel (documents), numel (words), ...
         numel (keywords), numel (texts), n_links);
if isempty (words) || isempty (keywords) || isempty (texts) || n_links == 0
  problems{end + 1} = 'one of these counts is 0: the check looks at the wrong files';
end
fprintf ('FAILED  %s\n', problems{:});
if ~isempty (problems), exit (1); end
