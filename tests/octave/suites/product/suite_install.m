% The install script of the toolbox, and the plan for MATLAB's build tool.
function tests = suite_install ()
  use_toolbox ();
  tests = localfunctions ();
end

function folder = toolbox ()
  folder = fileparts (which ('install_quarn'));
end

function folder = module ()
  folder = fileparts (which ('quarn'));
end

function test_a_named_folder_puts_module_and_toolbox_on_the_path ()
  code = ['addpath (''%s''); f = install_quarn (''%s''); rmpath (''%s''); addpath (''%s'', ''-end''); ' ...
          'if strcmp (f, ''%s'') && quarn () == 1.0001 && ~isempty (which (''qn.run'')), exit (7); end'];
  [status, page] = octave_says (sprintf (code, toolbox (), module (), toolbox (), toolbox (), module ()));
  expect_equal (status, 7);
  expect_in (page, ['quarn is ready: ' fullfile(module (), 'quarn.mex')]);
end

function test_a_relative_name_stays_good_after_a_change_of_folder ()
  [above, name] = fileparts (module ());
  code = 'addpath (''%s''); cd (''%s''); install_quarn (''%s''); cd (''/''); disp (which (''quarn'')); exit (7 * (quarn () == 1.0001))';
  [status, page] = octave_says (sprintf (code, toolbox (), above, name));
  expect_equal (status, 7);
  expect_in (page, fullfile (module (), 'quarn.mex'));
end

% Signs that shells, patterns or print formats take for something else.
function names = odd_names ()
  names = {'run [1]', 'a b''c', '$(touch stolen)', '`touch stolen`', 'back\slash', 'star*', 'per%d', 'q"uote', 'semi;touch stolen'};
end

function test_any_name_of_a_folder_is_taken_as_it_stands ()
  [above, away] = new_folder ();
  code = sprintf ('cd (''%s''); addpath (''%s'');\n', above, toolbox ());
  for name = odd_names ()
    mkdir (fullfile (above, name{1}));
    symlink (fullfile (module (), 'quarn.mex'), fullfile (above, name{1}, 'quarn.mex'));
    said = strrep (fullfile (above, name{1}), '''', '''''');
    code = sprintf ('%sclear quarn; f = install_quarn (''%s''); assert (f, ''%s''); assert (quarn (), 1.0001); assert (which (''quarn''), [f ''/quarn.mex'']);\n', ...
                    code, said, said);
  end
  [status, page] = octave_says ([code 'exit (7);']);
  if status ~= 7, error ('%s', page); end
  expect_equal (exist (fullfile (above, 'stolen'), 'file'), 0);
end

function test_a_folder_that_cannot_be_on_the_path_is_refused ()
  [above, away] = new_folder ();
  folder = fullfile (above, 'a:b');
  mkdir (folder);
  symlink (fullfile (module (), 'quarn.mex'), fullfile (folder, 'quarn.mex'));
  before = path ();
  expect_error (@() install_quarn (folder), 'qn:install', ...
                sprintf ('install_quarn: %s cannot be on the path, where : stands between two folders: give it another name', folder));
  expect_equal (path (), before);
end

% CMake takes these for patterns, lists and quotes of its own, and would stop with errors about something else.
function test_a_clone_in_a_folder_that_cannot_be_built_in_is_refused_in_words ()
  root = fileparts (toolbox ());
  for name = {'run [1]', 'a;b', 'q"uote', 'back\slash', 'a]', '$(touch stolen)', 'a#b'}
    [above, away] = new_folder ();
    mkdir (fullfile (above, name{1}));
    folder = fullfile (above, name{1}, 'scripts');
    mkdir (folder);
    put_file (fullfile (folder, 'build'), fileread (fullfile (root, 'scripts', 'build')));
    [status, said] = system (sprintf ('bash ''%s'' 2>&1', fullfile (folder, 'build')));
    expect_equal (status, 1);
    expect_in (said, sprintf ('build: CMake cannot build in %s: it takes', fullfile (above, name{1})));
  end
end

function test_a_saved_path_is_there_in_the_next_session ()
  [home, away] = new_folder ();
  code = sprintf ('addpath (''%s''); install_quarn (''%s'', ''save'');', toolbox (), module ());
  [status, page] = octave_says (code, ['HOME=' home]);
  expect_equal (status, 0);
  [status, page] = octave_says ('if quarn () == 1.0001 && ~isempty (which (''qn.run'')), exit (7); end', ['HOME=' home]);
  expect_equal (status, 7);
end

% As in addpath ('toolbox') from a clone.
function test_a_relative_name_of_the_toolbox_is_not_kept ()
  [home, away] = new_folder ();
  [above, name] = fileparts (toolbox ());
  code = sprintf ('cd (''%s''); addpath (''%s''); install_quarn (''%s'', ''save''); cd (''/'');', above, name, module ());
  [status, page] = octave_says (code, ['HOME=' home]);
  expect_equal (status, 0);
  if ~isempty (strfind (page, 'No such file')), error ('%s', page); end
  [status, page] = octave_says ('disp (strrep (path (), pathsep (), char (10)));', ['HOME=' home]);
  lines = strsplit (page, char (10));
  if any (strcmp (lines, name)) || ~any (strcmp (lines, toolbox ())) || ~isempty (strfind (page, 'warning')), error ('%s', page); end
end

function test_a_current_folder_that_hides_the_module_is_named ()
  code = sprintf ('cd (''%s''); try, install_quarn (''%s''); catch err, disp (err.message); exit (7); end', toolbox (), module ());
  [status, page] = octave_says (code);
  expect_equal (status, 7);
  expect_in (page, 'install_quarn: the current folder holds quarn.m, which hides the compiled module; change to another folder first');
end

function test_a_folder_without_the_module_is_refused ()
  [folder, away] = new_folder ();
  before = path ();
  expect_error (@() install_quarn (folder), 'qn:install', ['install_quarn: there is no quarn.mex in the folder ' folder]);
  expect_error (@() install_quarn ('no such folder'), 'qn:install', 'install_quarn: there is no folder no such folder');
  expect_error (@() install_quarn (3), 'qn:install', 'install_quarn: the name of a folder expected, got an array of class double');
  expect_error (@() install_quarn (module (), 'keep'), 'qn:install', 'install_quarn: the second argument is ''save'', or there is none');
  expect_equal (path (), before);
end

function test_a_module_that_cannot_be_loaded_leaves_the_path_alone ()
  [folder, away] = new_folder ();
  put_file (fullfile (folder, 'quarn.mex'), 'no library');
  code = ['addpath (''%s''); before = path (); try, install_quarn (''%s''); catch err, disp (err.message); end, ' ...
          'if strcmp (path (), before), exit (7); end'];
  [status, page] = octave_says (sprintf (code, toolbox (), folder));
  expect_equal (status, 7);
  expect_in (page, [fullfile(folder, 'quarn.mex') ' cannot be loaded into this host:']);
  expect_in (page, 'Build it on this machine, for this host');
end

% A copy of the script away from any clone, and no module on the path.
function test_a_missing_module_is_said_in_words ()
  [folder, away] = new_folder ();
  copyfile (fullfile (toolbox (), 'install_quarn.m'), folder);
  [status, page] = octave_says (sprintf ('addpath (''%s''); try, install_quarn (); catch err, disp (err.message); exit (7); end', folder));
  expect_equal (status, 7);
  expect_in (page, 'install_quarn: the compiled module quarn.mex was not found in ');
  expect_in (page, 'Build it (Octave: scripts/build; MATLAB: buildtool mex), or name its folder: install_quarn (FOLDER)');
end

function test_another_program_of_this_name_is_refused ()
  [folder, away] = new_folder ();
  source = fullfile (folder, 'other.c');
  put_file (source, ['#include <mex.h>' char(10) 'void mexFunction(int nlhs, mxArray* plhs[], int nrhs, const mxArray* prhs[]) {' char(10) ...
                '  plhs[0] = mxCreateDoubleScalar(3);' char(10) '}' char(10)]);
  mkoctfile ('--mex', '-o', fullfile (folder, 'quarn.mex'), source);
  code = 'addpath (''%s''); try, install_quarn (''%s''); catch err, disp (err.message); exit (7); end';
  [status, page] = octave_says (sprintf (code, toolbox (), folder));
  expect_equal (status, 7);
  expect_in (page, 'install_quarn: quarn () answered 3.0000 instead of 1.0001:');
end

% The plan needs MATLAB to run. Here its build task is called with functions that stand for MATLAB's, and its command is looked at.
function test_the_build_plan_names_every_source_and_the_flags_that_keep_the_bits ()
  root = fileparts (toolbox ());
  before = path ();
  back = onCleanup (@() path (before));
  state = warning ('off', 'Octave:shadowed-function');
  loud = onCleanup (@() warning (state));
  addpath (root, fullfile (root, 'tests', 'octave', 'support', 'build_tool'));
  plan = buildfile ();
  expect_equal (plan.DefaultTasks, {'mex', 'test'});
  names = cellfun (@func2str, plan.Tasks, 'uniformoutput', false);
  if ~any (strcmp (names, 'testTask')), error ('tasks: %s', strjoin (names.', ', ')); end
  plan.Tasks{strcmp (names, 'mexTask')} ();
  given_to_mex = evalin ('base', 'mex_arguments');
  [status, found] = system (sprintf ('find %s -name ''*.cpp''', fullfile (root, 'src')));
  sources = sort (strsplit (strtrim (found), char (10)));
  given = sort (given_to_mex(~cellfun (@isempty, regexp (given_to_mex, '\.cpp$'))));
  expect_equal (given(:), sources(:));
  all_of_it = strjoin (given_to_mex, ' ');
  for part = {'-R2017b', '-std=c++17', '-ffp-contract=off', '-Wl,--version-script=', '-DNDEBUG', '-Wl,--exclude-libs,ALL', '-ltbb', ...
              ['-I' fullfile(root, 'src')], fullfile(root, 'build', 'matlab', 'quarn')}
    expect_in (all_of_it, part{1});
  end
  % Hidden by a flag, the symbol of MATLAB's version file would not be found.
  if ~isempty (strfind (all_of_it, '-fvisibility')), error ('a flag of visibility among %s', all_of_it); end
end
