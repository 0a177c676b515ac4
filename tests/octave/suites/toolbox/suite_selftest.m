% The page that tells a user what works on a machine.
function tests = suite_selftest ()
  use_toolbox ();
  tests = localfunctions ();
end

function folder = toolbox ()
  folder = fileparts (fileparts (which ('qn.selftest')));
end

function folder = module ()
  folder = fileparts (which ('quarn'));
end

% A folder with one file in it, gone with the returned object.
function [folder, away] = folder_with (name, text)
  [folder, away] = new_folder ();
  put_file (fullfile (folder, name), text);
end

% The lines of the laws, in their order on the page; that every law is there is shown by suite_toolbox_law_list.
function names = laws ()
  checks = qn.impl.selftest_laws ();
  names = checks(strncmp (checks(:, 1), 'law ', 4), 1).';
  if numel (names) < 7, error ('only %d laws are checked', numel (names)); end
end

function test_every_line_is_ok_here_and_says_a_number ()
  page = evalc ('[ok, lines] = qn.selftest ();');
  if ~ok, error ('%s', page); end
  names = [{'host', 'module', 'presence call', 'linear run'}, laws(), {'product', 'threads', 'callback', 'error texts', 'picture'}];
  expect_equal ({lines.name}, names);
  expect_in (page, sprintf ('%d of %d ok in', numel (names), numel (names)));
  expect_in (page, fullfile (module (), 'quarn.mex'));
  for k = [1, 3:numel(names)]
    if isempty (regexp (lines(k).text, '\d', 'once')) && ~strcmp (names{k}, 'error texts'), error ('%s: %s', names{k}, lines(k).text); end
  end
end

% addpath of a folder that is not named from the root.
function test_a_module_is_not_behind_itself ()
  [folder, name] = fileparts (module ());
  code = sprintf (['addpath (''%s''); cd (''%s''); addpath (''%s''); checks = qn.impl.selftest_module (); ' ...
                   '[good, text] = checks{2, 2} (); printf (''%%d %%s'', good, text)'], toolbox (), folder, name);
  [status, text] = octave_says (code);
  expect_equal (status, 0);
  expect_equal (text, ['1 ' fullfile(name, 'quarn.mex')]);
end

function test_nothing_is_left_behind ()
  index = quarn ('chandleset', 1, struct ('pr', 1));
  keys = quarn ('chandleget');
  windows = get (0, 'children');
  files = numel (dir (fullfile (tempdir (), '*.png')));
  numbers = rand ('twister');
  route = path ();
  evalc ('ok = qn.selftest ();');
  expect_equal (ok, true);
  expect_equal (quarn ('chandleget'), keys);
  expect_equal (get (0, 'children'), windows);
  expect_equal (rand ('twister'), numbers);
  expect_equal (path (), route);
  if numel (dir (fullfile (tempdir (), '*.png'))) > files, error ('a picture stayed in %s', tempdir ()); end
  quarn ('chandleclear', index);
end

% Fewer entries than the workers take would compare one thread with itself.
function test_its_product_has_worker_threads ()
  checks = qn.impl.selftest_paths ();
  check = checks{strcmp (checks(:, 1), 'threads'), 2};
  clear ('quarn');
  before = numel (dir ('/proc/self/task'));
  [good, text] = check ();
  expect_equal (good, true);
  expect_equal (numel (dir ('/proc/self/task')) > before, true);
end

function test_a_path_without_the_module_is_said_in_words ()
  [status, page] = octave_says (sprintf ('addpath (''%s''); [ok, lines] = qn.selftest (); exit (7 + ok);', toolbox ()));
  expect_equal (status, 7);
  expect_in (page, 'FAILED  module          no folder on the path holds the compiled module quarn.mex: build it');
  expect_in (page, 'not run');
end

function test_without_an_output_a_failure_is_an_error ()
  code = sprintf (['addpath (''%s'');\ntry\n  qn.selftest ();\ncatch err\n  disp (err.identifier);\n  disp (err.message);\n' ...
                   '  exit (5);\nend\n'], toolbox ());
  [status, page] = octave_says (code);
  expect_equal (status, 5);
  expect_in (page, sprintf ('qn:selftest\nqn.selftest: not everything works here: module, presence call'));
end

function test_a_module_that_the_host_cannot_load_is_said_in_words ()
  [folder, away] = folder_with ('quarn.mex', 'no library');
  [status, page] = octave_says (sprintf ('addpath (''%s''); addpath (''%s''); ok = qn.selftest (); exit (7 + ok);', toolbox (), folder));
  expect_equal (status, 7);
  expect_in (page, ['ok      module          ' fullfile(folder, 'quarn.mex')]);
  expect_in (page, 'FAILED  presence call   the module was not found or cannot be loaded into this host:');
end

function test_the_help_file_in_front_of_the_module_is_named ()
  [status, page] = octave_says (sprintf ('addpath (''%s''); addpath (''%s''); ok = qn.selftest (); exit (7 + ok);', module (), toolbox ()));
  expect_equal (status, 8);
  expect_in (page, sprintf ('%s (behind %s)', fullfile (module (), 'quarn.mex'), fullfile (toolbox (), 'quarn.m')));
end

function test_another_function_of_this_name_fails ()
  [folder, away] = folder_with ('quarn.m', 'function x = quarn (varargin), x = 3; end');
  [status, page] = octave_says (sprintf ('addpath (''%s''); addpath (''%s''); addpath (''%s''); exit (7 + qn.selftest ());', toolbox (), ...
                                         module (), folder));
  expect_equal (status, 7);
  expect_in (page, 'FAILED  presence call   3 instead of 1.0001: another function of this name is in front');
end

% A module that answers and does nothing passes no line that looks at results.
function test_wrong_results_fail_line_by_line ()
  code = ['function varargout = quarn (word, varargin)' char(10) 'varargout = {1.0001};' char(10) ...
          'if nargin > 0 && strcmp (word, ''ismex''), varargout = {1}; end' char(10) ...
          'if nargin > 0 && strcmp (word, ''cvs''), varargout = {''''}; end' char(10) 'end'];
  [folder, away] = folder_with ('quarn.m', code);
  [status, page] = octave_says (sprintf ('addpath (''%s''); addpath (''%s''); addpath (''%s''); exit (7 + qn.selftest ());', toolbox (), ...
                                         module (), folder));
  expect_equal (status, 7);
  for name = [{'linear run'}, laws(), {'product', 'threads', 'callback', 'error texts'}]
    expect_in (page, sprintf ('FAILED  %-16s', name{1}));
  end
  expect_in (page, 'ok      picture');
end
