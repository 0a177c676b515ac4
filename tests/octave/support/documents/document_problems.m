% [PROBLEMS, COUNTS] = DOCUMENT_PROBLEMS (ROOT)  checks the documents of a tree against its sources and against each other
%
% PROBLEMS is a cell row of texts:
%   - a command word of the command table without a section under docs/commands, or without a line in the table of docs/commands.md
%   - a law keyword of the law table without a section in docs/laws.md
%   - a code of a handle type without a section in docs/commands/handles.md
%   - a folder of the sources that README.md does not name
%   - an error of src/base/fixed_errors.h without a line in docs/commands.md that has identifier, text and what raises it, or a line too many
%   - a relative link or image that leads to no file, or to no heading of it
%   - nothing found of one of these kinds: the check would be looking at the wrong files
% COUNTS holds the numbers of documents, command words, law keywords, handle types, error texts and links.
function [problems, counts] = document_problems (root)
  index = fullfile (root, 'docs', 'commands.md');
  documents = find_files (fullfile (root, 'docs'), '\.md$');
  for name = {'README.md', 'CHANGELOG.md', 'CONTRIBUTING.md'}
    documents{end + 1} = fullfile (root, name{1});
  end
  problems = {};

  tables = source_tables (root);
  words = tables.commands;
  keywords = tables.laws;
  listed = fileread (index);
  headings = headings_of (find_files (fullfile (root, 'docs', 'commands'), '\.md$'));
  for k = 1:numel (words)
    if ~any (strcmp (headings, words{k})), problems{end + 1} = sprintf ('command "%s" has no section under docs/commands', words{k}); end
    if isempty (strfind (listed, ['| [`' words{k} '`](']))
      problems{end + 1} = sprintf ('command "%s" has no line in docs/commands.md', words{k});
    end
  end
  headings = headings_of ({fullfile(root, 'docs', 'laws.md')});
  for k = 1:numel (keywords)
    if ~any (strcmp (headings, keywords{k})), problems{end + 1} = sprintf ('law "%s" has no section in docs/laws.md', keywords{k}); end
  end

  headings = document_headings (fullfile (root, 'docs', 'commands', 'handles.md'));
  for k = 1:numel (tables.types)
    if all (cellfun (@isempty, regexp (headings, ['\(types?[^)]*\<' tables.types{k} '\>'], 'once')))
      problems{end + 1} = sprintf ('handle type %s has no section "... (type %s)" in docs/commands/handles.md', tables.types{k}, tables.types{k});
    end
  end

  readme = fileread (fullfile (root, 'README.md'));
  rooms = dir (fullfile (root, 'src'));
  for name = {rooms([rooms.isdir]).name}
    if name{1}(1) ~= '.' && isempty (strfind (readme, ['`' name{1} '`']))
      problems{end + 1} = sprintf ('the folder src/%s is not in README.md', name{1});
    end
  end

  errors = fixed_errors (root);
  lines = regexp (listed, '\n', 'split');
  for k = 1:numel (errors)
    e = errors(k);
    start = ['| "' e.text '"'];
    if ~isempty (e.identifier), start = ['| `' e.identifier '` ' start]; end
    if ~any (strncmp (lines, start, numel (start)) & ~cellfun (@isempty, strfind (lines, ['| ' e.from])))
      problems{end + 1} = sprintf ('error %s"%s", %s, has no line in the tables of docs/commands.md', e.identifier, e.text, e.from);
    end
  end
  for line = lines(~cellfun (@isempty, regexp (lines, '^\| (`KORV:[^`]*` \| )?"', 'once')))
    listed_text = regexp (line{1}, '"(.*?)" (\(two blanks\) )?\|', 'tokens', 'once');
    if ~isempty (listed_text) && ~any (strcmp ({errors.text}, listed_text{1}))
      problems{end + 1} = sprintf ('docs/commands.md lists the error "%s", which is not in src/base/fixed_errors.h', listed_text{1});
    end
  end

  n_links = 0;
  for k = 1:numel (documents)
    links = document_links (documents{k});
    n_links = n_links + numel (links);
    for m = 1:numel (links)
      if ~link_leads_somewhere (documents{k}, links{m}), problems{end + 1} = sprintf ('%s: dead link %s', documents{k}, links{m}); end
    end
  end

  counts = [numel(documents), numel(words), numel(keywords), numel(tables.types), numel(errors), n_links];
  if any (counts == 0), problems{end + 1} = sprintf ('found %d documents, %d words, %d keywords, %d handle types, %d error texts, %d links', counts); end
end
