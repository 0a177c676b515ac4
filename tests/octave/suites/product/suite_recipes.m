% A new row of the tables of commands, laws and handle types is in every place that CONTRIBUTING.md names, and this suite sees a missing one.
function tests = suite_recipes ()
  addpath (fullfile (project_folder (), 'tests', 'octave', 'support', 'documents'));
  tests = localfunctions ();
end

function test_every_row_of_the_tables_is_where_the_guide_for_contributors_says ()
  problems = recipe_problems (project_folder ());
  if ~isempty (problems), error ('%s', sprintf ('\n  %s', problems{:})); end
end

function test_the_tables_are_read_from_the_sources ()
  tables = source_tables ();
  expect_equal (all (ismember ({'ismex', 'c<-a''*b', 'version'}, tables.commands)), true);
  expect_equal (numel (tables.commands), numel (unique (tables.commands)));
  expect_equal (all (ismember ({'Power', 'sts'}, tables.laws)), true);
  expect_equal (all (ismember ({'1', '2', '3', '1003', '2000'}, tables.types)), true);
end

% Files whose lines hold texts and tables, which the tests of every row read.
function test_every_source_has_mutants ()
  texts = {'gateway/command_table.cpp', 'gateway/service_commands.cpp', 'gateway/version_command.cpp', 'host/host_name.cpp', ...
           'sparse/blas_name.cpp', 'sparse/spblas.cpp', 'uncalled/uncalled.cpp'};
  src = [fullfile(project_folder (), 'src') '/'];
  sources = strrep (find_files (src, '\.cpp$'), src, '');
  lists = cellfun (@fileread, find_files (fullfile (project_folder (), 'tests', 'mutants'), '\.list$'), 'uniformoutput', false);
  named = regexp ([lists{:}], '^file src/(\S+)', 'tokens', 'lineanchors');
  missing = setdiff (sources, [[named{:}], texts]);
  if ~isempty (missing), error ('no entry in a list of tests/mutants for src/%s', strjoin (missing(:).', ', src/')); end
  expect_equal (isempty (setdiff (texts, sources)), true);
end

function test_a_made_up_command_is_reported_at_every_place ()
  everything_missing ('commands', 's<-''o', '{"s<-''o", commandSo},');
end

function test_a_made_up_law_is_reported_at_every_place ()
  everything_missing ('laws', 'Snap', '  row("Snap", FuSnap, checkSnap),');
end

function test_a_made_up_handle_type_is_reported_at_every_place ()
  everything_missing ('types', '77', sprintf ('case 77:\n  h = make<chandleSnap>();'));
end

function test_a_place_that_the_guide_does_not_name_is_reported ()
  [root, away] = copy_of_places ();
  guide = fullfile (root, 'CONTRIBUTING.md');
  text = fileread (guide);
  put_file (guide, strrep (text, 'random_law.m', 'random_things.m'));
  expect_equal (new_problems (root), {'CONTRIBUTING.md does not name tests/octave/support/random_law.m under "Add a force law"'});
end

% Each of the lists has two laws the other way round, all at the same time.
function test_a_list_of_laws_in_another_order_than_the_table_is_reported ()
  [root, away] = copy_of_places ();
  orders = recipe_places ();
  wanted = {};
  for list = orders.orders.'
    file = fullfile (root, list{1});
    text = fileread (file);
    [first, last, laws] = regexp (text, list{2}, 'start', 'end', 'tokens', 'lineanchors');
    if numel (laws) < 13, error ('only %d laws found in %s by %s', numel (laws), list{:}); end
    put_file (file, [text(1:first(2)-1), text(first(3):last(3)), text(last(2)+1:first(3)-1), text(first(2):last(2)), text(last(3)+1:end)]);
    wanted{end + 1} = sprintf ('the laws of %s are not in the order of the table in src: "%s" is before "%s"', list{1}, laws{3}{1}, laws{2}{1});
  end
  expect_equal (new_problems (root), unique (wanted));
  expect_equal (numel (wanted), size (orders.orders, 1));
end

function test_a_plot_of_an_unknown_law_says_which_are_drawn ()
  figures = fullfile (project_folder (), 'docs', 'figures');
  addpath (figures);
  away = onCleanup (@() rmpath (figures));
  expect_error (@() make_law_plots ('power'), '', '~make_law_plots draws no law "power"; it draws Power, Expon, Table, ');
end

function test_a_table_that_is_not_found_is_reported ()
  [root, away] = copy_of_places ();
  delete (fullfile (root, 'src', 'nonlinear', 'law_table.cpp'));
  problems = new_problems (root);
  expect_equal (problems(strncmp (problems, 'no ', 3)), {'no law found in src'});
end

% With ROW in a source, exactly the places of TABLE are missing, each with the word and what to add.
function everything_missing (table, word, row)
  [root, away] = copy_of_places ();
  put_file (fullfile (root, 'src', 'more.cpp'), sprintf ('\n%s\n', row));
  problems = new_problems (root);
  places = recipe_places ();
  places = places.(table);
  if numel (problems) ~= numel (places), error ('%d places, reported:%s', numel (places), sprintf ('\n  %s', problems{:})); end
  problems = strjoin (problems, char (10));
  for k = 1:numel (places)
    expect_in (problems, sprintf (' "%s": add %s, in %s', word, places(k).advice, strrep (places(k).path, '%l', lower (word))));
  end
end

% The problems of the tree in ROOT that this one does not have: a row that is being added is reported once, by the first test.
function problems = new_problems (root)
  persistent known
  if isempty (known), known = [recipe_problems(project_folder ()), {''}]; end
  problems = setdiff (recipe_problems (root), known);
end

% The sources, the guide, and the places of all tables.
function [root, away] = copy_of_places ()
  [root, away] = new_folder ();
  places = recipe_places ();
  orders = places.orders;
  places = [places.commands, places.laws, places.types];
  paths = unique ([{'src', 'CONTRIBUTING.md', 'docs/images', 'tests/octave/models'}, {places.path}, orders(:, 1).']);
  for path = paths(cellfun (@isempty, strfind (paths, '%')))
    to = fileparts (fullfile (root, path{1}));
    if ~exist (to, 'dir'), mkdir (to); end
    from = fullfile (project_folder (), path{1});
    if exist (fullfile (root, path{1}), 'dir'), from = fullfile (from, '*'); to = fullfile (root, path{1}); end
    copyfile (from, to);
  end
end
