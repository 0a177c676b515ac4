% Every argument of every public function that takes numbers, with numbers that are wrong (see number_arguments).
function tests = suite_toolbox_arguments ()
  use_toolbox ();
  tests = localfunctions ();
end

function test_every_function_and_every_option_has_a_valid_call_to_be_tried_on ()
  rows = number_arguments ();
  list = toolbox_functions ();
  for k = 1:size (list, 1)
    name = list{k, 1};
    if strcmp (name, 'quarn'), continue, end
    own = rows(strcmp (rows(:, 1), name), :);
    if isempty (own)
      error ('%s has no row in tests/octave/support/number_arguments.m; add {''%s'', {its arguments}, {a valid call}, {}}', name, name);
    end
    given = {};
    for j = 1:size (own, 1)
      words = own{j, 3}(cellfun (@ischar, own{j, 3}));
      given = [given, own{j, 2}, words];
    end
    for wanted = [options(list{k, 2}), arguments(list{k, 2})]
      if ~any (strcmp (wanted{1}, given))
        error ('%s: no row in tests/octave/support/number_arguments.m gives its argument "%s"', name, wanted{1});
      end
    end
  end
end

% Names of the options in a help text: quoted words at the beginning of a line of "Input", two blanks before what they mean.
function names = options (file)
  names = {};
  for line = help_lines (file, 'Input')
    words = regexp (line{1}, '^    ?''\w+''(, ''\w+'')*  ', 'match', 'once');
    if isempty (words), continue, end
    names = [names, strrep(regexp (words, '''\w+''', 'match'), '''', '')];
  end
end

% Arguments in the calls of a help text, in capital letters.
function names = arguments (file)
  names = {};
  for line = help_lines (file, 'Calls')
    inside = regexp (line{1}, '\(([^)]*)\)', 'tokens', 'once');
    if isempty (inside), continue, end
    names = [names, regexp(regexprep (inside{1}, '''\w+'', \w+', ''), '\[?\<[A-Z][A-Z0-9 ]*\>\]?', 'match')];
  end
  names = setdiff (strtrim (names), {'NAME', 'VALUE', 'VALUES', 'X', 'NAMES'});
end

function test_wrong_numbers_are_refused_with_function_and_argument ()
  wrong = {};
  tried = 0;
  seen = 0;
  % By default NaN everywhere, and every ninth of the rest.
  all_of_them = ~isempty (getenv ('QUARN_FULL'));
  rows = number_arguments ();
  for k = 1:size (rows, 1)
    found = places (rows{k, 3}, rows{k, 2});
    if isempty (found), continue, end
    whole = result (rows{k, 1}, rows{k, 3});
    for j = 1:size (found, 1)
      x = subsref (rows{k, 3}, found{j, 2});
      hostile = kinds (x);
      for i = 1:size (hostile, 1)
        if excepted (rows{k, 4}, found{j, 1}, hostile{i, 1}), continue, end
        seen = seen + 1;
        if ~all_of_them && i > 1 && mod (seen, 9), continue, end
        tried = tried + 1;
        who = rows{k, 1};
        if excepted (rows{k, 4}, found{j, 1}, 'named'), who = 'qn.'; end
        says = verdict (rows{k, 1}, who, subsasgn (rows{k, 3}, found{j, 2}, hostile{i, 2}), found{j, 1}, hostile{i, 1}, whole);
        if ~isempty (says), wrong{end + 1} = sprintf ('%s, %s %s: %s', rows{k, 1}, found{j, 1}, hostile{i, 1}, says); end
      end
    end
  end
  close ('all');
  if tried < seen / 6, error ('only %d of %d calls', tried, seen); end
  if seen < 2000, error ('only %d arguments', seen); end
  if ~isempty (wrong)
    error (['%d of %d calls. Check the argument with qn.impl.numbers (scalar, count, flag), or list why it is right in ' ...
            'tests/octave/support/number_arguments.m:\n%s'], numel (wrong), tried, strjoin (wrong, sprintf ('\n')));
  end
end

function yes = excepted (list, place, kind)
  yes = false;
  for k = 1:size (list, 1)
    yes = yes || (~isempty (regexp (place, ['^(' list{k, 1} ')'], 'once')) && ~isempty (regexp (kind, ['^(' list{k, 2} ')$'], 'once')));
  end
end

% '' where the call is refused as it should be, or gives the result of the valid one although its number is only written otherwise.
function says = verdict (name, who, args, place, kind, whole)
  says = '';
  try
    got = result (name, args);
  catch err
    if ~strcmp (err.identifier, 'qn:input')
      says = sprintf ('[%s] %s', err.identifier, err.message);
    elseif strcmp (kind, 'longer') && ~isempty (strfind (err.message, who))
      % Of two arguments of one length the other one may be named.
    elseif isempty (strfind (err.message, who)) || isempty (regexpi (err.message, regexptranslate ('escape', place), 'once'))
      says = sprintf ('does not name them: %s', err.message);
    end
    if strcmp (kind, 'single'), says = sprintf ('refused: %s', err.message); end
    return
  end
  if ~any (strcmp (kind, {'single', 'transposed'}))
    says = 'is taken';
  elseif ~isequaln (got, whole)
    says = 'gives another result';
  end
end

% Places of numbers in a cell of arguments, as rows {name, reference}. Structures other than laws are results of other functions.
function list = places (args, names)
  list = cell (0, 2);
  word = '';
  for k = 1:numel (args)
    if k <= numel (names)
      name = names{k};
    elseif isempty (word) && ischar (args{k})
      word = args{k};
      continue
    else
      name = word;
      word = '';
    end
    list = [list; inside(args{k}, name, substruct ('{}', {k}))];
  end
end

function list = inside (x, name, at)
  list = cell (0, 2);
  if isnumeric (x) && ~isempty (x)
    list = {name, at};
  elseif iscell (x)
    for j = 1:numel (x)
      [r, c] = ind2sub (size (x), j);
      list = [list; inside(x{j}, sprintf ('%s{%d, %d}', name, r, c), [at, substruct('{}', {r, c})])];
    end
  elseif isstruct (x) && isfield (x, 'kind')
    for field = fieldnames (x.parameters).'
      list = [list; inside(x.parameters.(field{1}), field{1}, [at, substruct('.', 'parameters', '.', field{1})])];
    end
  elseif isstruct (x) && isfield (x, 'K') && ~isfield (x, 'shapes') && ~isfield (x, 'parts')
    for field = fieldnames (x).', list = [list; inside(x.(field{1}), field{1}, [at, substruct('.', field{1})])]; end
  end
end

function list = kinds (x)
  last = @(y, value) subsasgn (y, substruct ('()', {numel(y)}), value);
  list = {'nan', last(x, NaN); 'inf', last(x, Inf); 'complex', last(x, 1 + 2i); 'empty', []; 'logical', true(size (x))};
  if ~isempty (getenv ('QUARN_FULL'))
    list = [list; {'minus inf', last(x, -Inf); 'char', 'ab'; 'cell', {x}; 'deep', cat(3, full (x), full (x))}];
  end
  if size (x, 1) > 1 && size (x, 2) == 1
    list(end + 1, :) = {'longer', [x; x(end)]};
  else
    list(end + 1, :) = {'longer', [x, x(:, end)]};
  end
  if size (x, 1) ~= size (x, 2), list(end + 1, :) = {'transposed', x.'}; end
  if ~issparse (x) && isequal (double (single (x)), x), list(end + 1, :) = {'single', single(x)}; end
end

function x = result (name, args)
  close ('all');
  f = str2func (name);
  if strncmp (name, 'qn.plot.', 8)
    evalc ('f (args{:});');
    x = {get(findobj ('type', 'line'), {'xdata', 'ydata'}), get(findobj ('type', 'axes'), 'position'), get(gcf (), 'position')};
  elseif nargout (name) == 0
    evalc ('f (args{:})');
    x = [];
  else
    [unused, x] = evalc ('f (args{:})');
  end
  % Loads are compared by what they are at some times.
  if iscell (x), x = cellfun (@sampled, x, 'uniformoutput', false); end
  if isstruct (x) && isfield (x, 'options'), x = rmfield (x, 'options'); end
  if isstruct (x) && isfield (x, 'seconds'), x = rmfield (x, 'seconds'); end
end

function x = sampled (x)
  if isa (x, 'function_handle') && nargin (x) == 1, x = x ([0 0.3 2]); end
end
