% The checks of the documents find what is wrong: each test breaks one thing in a small tree that has nothing wrong with it.
function tests = suite_document_checks ()
  addpath (fullfile (project_folder (), 'tests', 'octave', 'support', 'documents'));
  tests = localfunctions ();
end

function put (root, name, text)
  file = fullfile (root, name);
  if ~exist (fileparts (file), 'dir'), mkdir (fileparts (file)); end
  id = fopen (file, 'w');
  fprintf (id, '%s', text);
  fclose (id);
end

function remove (root)
  confirm_recursive_rmdir (false, 'local');
  rmdir (root, 's');
end

function text = folders ()
  text = sprintf ('# Tree\n`base`, `gateway`, `handles`, `nonlinear`\n');
end

function text = list_of_errors (first)
  text = sprintf ('%s\n| `KORV:quarn:empty` | "no such thing" | a mass (a link) |\n| "other thing" | `a*b` |\n', first);
end

function root = good_tree ()
  root = tempname ();
  put (root, 'README.md', folders ());
  put (root, 'CHANGELOG.md', '# Changes');
  put (root, 'CONTRIBUTING.md', sprintf ('See [the command](docs/commands/one.md#the-command-ab).\n'));
  put (root, 'src/gateway/command_table.cpp', sprintf ('  {"a*b", commandAb},\n'));
  put (root, 'src/nonlinear/law_table.cpp', sprintf ('  row("Soft", FuSoft, checkSoft),\n'));
  put (root, 'src/handles/handle_types.cpp', sprintf ('case soft: h = make<chandleSoft>(); break;\ncase 8:\n  h = make<chandleHard>();\n'));
  put (root, 'src/handles/handle_types.h', sprintf ('enum class HandleType { soft = 7 };\n'));
  put (root, 'docs/commands/handles.md', sprintf ('## Both (types 7 and 8)\n'));
  put (root, 'src/base/fixed_errors.h', sprintf ('FixedError a{"KORV:quarn:empty", "no such thing", "a mass"};\nFixedError b{nullptr, "other thing",\n  "`a*b`"};\n'));
  put (root, 'docs/commands.md', list_of_errors ('| [`a*b`](commands/one.md) |'));
  put (root, 'docs/commands/one.md', sprintf ('# The command `a*b`\n'));
  put (root, 'docs/laws.md', sprintf ('## Soft\n'));
end

% The tree with FILE replaced must have exactly one problem, which matches PATTERN.
function expect_problem (file, text, pattern)
  root = good_tree ();
  put (root, file, text);
  problems = document_problems (root);
  remove (root);
  if numel (problems) ~= 1 || isempty (regexp (problems{1}, pattern, 'once'))
    error ('expected one problem like "%s", got %d: %s', pattern, numel (problems), strjoin (problems, '; '));
  end
end

function test_a_good_tree_has_no_problem ()
  root = good_tree ();
  [problems, counts] = document_problems (root);
  remove (root);
  expect_equal (numel (problems), 0);
  expect_equal (counts, [7 1 1 2 2 2]);
end

function test_a_command_without_a_section ()
  expect_problem ('docs/commands/one.md', sprintf ('# The command ab\n'), 'command "a\*b" has no section');
end

function test_a_command_without_a_line_in_the_table ()
  expect_problem ('docs/commands.md', list_of_errors ('[`a*b`](commands/one.md)'), ...
                  'command "a\*b" has no line');
end

function test_a_law_without_a_section ()
  expect_problem ('docs/laws.md', sprintf ('## Softer\nSoft\n'), 'law "Soft" has no section');
end

function test_a_folder_that_the_readme_does_not_name ()
  expect_problem ('README.md', '# Tree with `base`, `gateway` and `handles`, nonlinear as well', 'folder src/nonlinear is not in README.md');
end

function test_a_handle_type_without_a_section ()
  expect_problem ('docs/commands/handles.md', sprintf ('## Soft (type 7)\nand 8\n'), 'handle type 8 has no section');
end

function test_a_heading_in_a_fenced_block_is_no_section ()
  expect_problem ('docs/laws.md', sprintf ('```text\n## Soft\n```\n'), 'law "Soft" has no section');
end

function test_errors_that_are_not_listed ()
  text = list_of_errors ('| [`a*b`](commands/one.md) |');
  for missing = {'KORV:quarn:empty', '| a mass'}
    expect_problem ('docs/commands.md', strrep (text, missing{1}, ''), 'error KORV:quarn:empty"no such thing", a mass, has no line');
  end
  expect_problem ('docs/commands.md', strrep (text, '| "other thing"', '|'), 'error "other thing", `a\*b`, has no line');
  expect_problem ('docs/commands.md', [text sprintf('| "old thing" | `a*b` |\n')], 'lists the error "old thing", which is not in src/base/fixed_errors.h');
end

function test_dead_links ()
  expect_problem ('README.md', [folders() '[a](docs/two.md)'], 'README.md: dead link docs/two.md');
  expect_problem ('README.md', [folders() '![a picture](docs/images/two.png)'], 'dead link docs/images/two.png');
  expect_problem ('README.md', [folders() '[a](docs/laws.md#hard)'], 'dead link docs/laws.md#hard');
  expect_problem ('README.md', [folders() '[a](#hard)'], 'dead link #hard');
end

function test_an_empty_law_table_is_a_problem ()
  expect_problem ('src/nonlinear/law_table.cpp', 'nothing', '0 keywords');
end

function test_blocks_of_a_document ()
  root = tempname ();
  put (root, 'a.md', sprintf ('# A\n```matlab\nx = 1;\ny = 2;\n```\ntext\n  ```text\nno\n  ```\n```matlab\nz\n```\n'));
  blocks = document_blocks (fullfile (root, 'a.md'), 'matlab');
  put (root, 'b.md', sprintf ('```matlab\nx = 1;\n'));
  expect_equal ({blocks.code}, {sprintf('x = 1;\ny = 2;'), 'z'});
  expect_equal ([blocks.line], [2 10]);
  expect_error (@() document_blocks (fullfile (root, 'b.md'), 'matlab'), '', '~line 1 is not closed');
  remove (root);
end
