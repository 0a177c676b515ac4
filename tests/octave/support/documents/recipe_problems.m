% PROBLEMS = RECIPE_PROBLEMS (ROOT)  rows of the tables of the sources below ROOT that are missing in a place of RECIPE_PLACES
%
% A cell row of texts, each with the row, what to add, and where. A list of laws in another order than the table, a place that the guide for contributors does not name under the heading
% of its table, and a table without rows, are problems as well.
function problems = recipe_problems (root)
  tables = source_tables (root);
  places = recipe_places ();
  names = struct ('commands', 'command', 'laws', 'law', 'types', 'handle type');
  headings = struct ('commands', 'Add a command', 'laws', 'Add a force law', 'types', 'Add a handle type');
  guide = fileread (fullfile (root, 'CONTRIBUTING.md'));
  problems = {};
  for table = fieldnames (tables).'
    if isempty (tables.(table{1})), problems{end + 1} = sprintf ('no %s found in src', names.(table{1})); end
    section = regexp (guide, ['\n## ' headings.(table{1}) '\n.*?(?=\n## |$)'], 'match', 'once');
    for place = places.(table{1})
      text = text_of (root, place.path);
      for word = tables.(table{1})
        if ~isempty (place.without) && any (strcmp (place.without(:, 1), word{1})), continue, end
        if ~turns_up (root, place, text, word{1})
          problems{end + 1} = sprintf ('%s "%s": add %s, in %s', names.(table{1}), word{1}, place.advice, of_word (place.path, word{1}));
        end
      end
      if isempty (strfind (section, shown (place.path)))
        problems{end + 1} = sprintf ('CONTRIBUTING.md does not name %s under "%s"', shown (place.path), headings.(table{1}));
      end
    end
  end
  for list = places.orders.', problems = [problems, order_problem(root, list{:}, tables.laws)]; end
end

% A list that has two laws the other way round than the table.
function problem = order_problem (root, path, pattern, laws)
  listed = regexp (text_of (root, path), pattern, 'tokens', 'lineanchors');
  listed = unique ([listed{:}, {}], 'stable');
  listed = listed(ismember (listed, laws));
  [~, at] = ismember (listed, laws);
  k = find (diff (at) < 0, 1);
  problem = {};
  if ~isempty (k)
    problem = {sprintf('the laws of %s are not in the order of the table in src: "%s" is before "%s"', path, listed{k}, listed{k + 1})};
  end
end

function text = text_of (root, path)
  text = '';
  if any (path == '%'), return, end
  full = fullfile (root, path);
  files = {full};
  if exist (full, 'dir'), files = find_files (full, '\.(m|cpp)$'); end
  for file = files
    if exist (file{1}, 'file'), text = [text, fileread(file{1})]; end
  end
end

% Quotes as the language of the file writes them.
function found = turns_up (root, place, text, word)
  if isempty (place.pattern)
    found = exist (fullfile (root, of_word (place.path, word)), 'file') > 0;
    return
  end
  in_text = word;
  if ~isempty (strfind (place.pattern, '''%w')), in_text = strrep (word, '''', ''''''); end
  pattern = strrep (strrep (place.pattern, '%w', regexptranslate ('escape', in_text)), '%l', lower (word));
  found = ~isempty (regexp (text, pattern, 'once'));
end

function path = of_word (path, word)
  path = strrep (path, '%l', lower (word));
end

% As the guide writes it, with the law of its example.
function path = shown (path)
  path = of_word (path, 'tanh');
end
