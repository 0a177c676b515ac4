% Includes in src go down only, and kernels know no host.
function tests = suite_includes ()
  tests = localfunctions ();
end

function put (root, folder, name, text)
  place = fullfile (root, 'src', folder);
  if ~exist (place, 'dir'), mkdir (place); end
  put_file (fullfile (place, name), sprintf (text));
end

function [root, clean] = small_tree ()
  [root, clean] = new_folder ();
  put (root, 'numbers', 'convert.h', '#pragma once\n');
  put (root, 'host', 'errors.h', '#include <mex.h>\n#include "numbers/convert.h"\n');
  put (root, 'base', 'chandle.h', '#include "host/errors.h"\n');
  put (root, 'sparse', 'sp_tbb.cpp', '#include "numbers/convert.h"\n');
  put (root, 'sparse', 'line_checks.h', '#include "host/errors.h"\n');
  put (root, 'nonlinear', 'laws.cpp', '#include "base/chandle.h"\n#include "sparse/line_checks.h"\n');
  put (root, 'integration', 'ror.h', '#include "base/chandle.h"\n');
end

function expect_one (file, text, pattern)
  [root, clean] = small_tree ();
  put (root, fileparts (file), regexprep (file, '^.*/', ''), text);
  problems = include_problems (root);
  if numel (problems) ~= 1 || isempty (regexp (problems{1}, pattern, 'once'))
    error ('expected one problem like "%s", got %d: %s', pattern, numel (problems), strjoin (problems, '; '));
  end
end

function test_includes_of_the_sources_go_down_and_kernels_know_no_host ()
  problems = include_problems (project_folder ());
  if ~isempty (problems), error ('%s', strjoin (problems, sprintf ('\n'))); end
end

function test_a_tree_whose_includes_go_down_has_no_problem ()
  [root, clean] = small_tree ();
  expect_equal (include_problems (root), {});
end

function test_an_include_that_goes_up ()
  expect_one ('host/errors.h', '#include "base/chandle.h"\n', 'src/host/errors.h includes "base/chandle.h": includes go down only');
  expect_one ('sparse/line_checks.h', '  # include "nonlinear/laws.cpp"\n', 'src/sparse/line_checks.h includes "nonlinear/laws.cpp": includes go down');
end

function test_folders_of_one_level_do_not_know_each_other ()
  expect_one ('nonlinear/laws.cpp', '#include "integration/ror.h"\n', 'src/nonlinear/laws.cpp includes "integration/ror.h": includes go down');
end

function test_a_folder_without_a_level_and_an_include_of_nothing ()
  expect_one ('extras/more.h', '#pragma once\n', 'src/extras/more.h is in a folder without a level');
  expect_one ('base/chandle.h', '#include "host/arrays.h"\n', 'src/base/chandle.h includes "host/arrays.h", which is not in src');
end

function test_a_kernel_that_reaches_the_host_through_another_file ()
  expect_one ('sparse/sp_tbb.cpp', '#include "sparse/line_checks.h"\n', ...
              'sp_tbb.cpp is to know no host: sparse/sp_tbb.cpp includes sparse/line_checks.h includes host/errors.h');
end
