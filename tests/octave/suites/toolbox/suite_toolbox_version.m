function tests = suite_toolbox_version ()
  use_toolbox ();
  tests = localfunctions ();
end

function test_toolbox_and_module_tell_their_version ()
  v = qn.version ();
  m = quarn ('version');
  expect_equal ({v.toolbox, v.module, v.compiler, v.built_for, v.cblas}, {m.version, m.version, m.compiler, m.host, m.cblas});
  expect_equal (v.host, ['GNU Octave ' OCTAVE_VERSION()]);
  expect_equal (exist (v.file, 'file') > 0, true);
  text = evalc ('qn.version ()');
  if isempty (strfind (text, m.version)) || ~isempty (strfind (text, 'another version')), error ('printed "%s"', text); end
end

% What another process says that has TEXT as its quarn.m.
function out = with_module (text)
  folder = tempname ();
  mkdir (folder);
  clean = onCleanup (@() system (['rm -r ' folder]));
  fid = fopen (fullfile (folder, 'quarn.m'), 'w');
  fprintf (fid, '%s', text);
  fclose (fid);
  % The same text in every process: nothing else of this name may be in front.
  code = sprintf ('warning (''off'', ''all''); addpath (''%s''); addpath (''%s''); qn.version ()', fileparts (fileparts (which ('qn.run'))), folder);
  [status, out] = system (['octave-cli --no-history -qf --eval "' code '" 2>&1']);
  expect_equal (status, 0);
end

function test_an_older_another_and_no_module_are_said_in_words ()
  older = sprintf (['function x = quarn (varargin)\nif nargin > 0, error (''quarn : Unknown command''); end\nx = 1.0001;\nend\n']);
  expect_match (with_module (older), 'module +unknown\n');
  expect_match (with_module (older), 'another version');
  other = sprintf (['function x = quarn (varargin)\nx = 1.0001;\nif nargin > 0, x = struct (''version'', ''0.1.9'', ''compiler'', ''c'', ' ...
                    '''host'', ''h'', ''cblas'', ''b''); end\nend\n']);
  expect_match (with_module (other), 'module +0\.1\.9\n');
  expect_match (with_module (other), 'another version');
  expect_match (with_module (sprintf ('function x = quarn ()\nx = 3;\nend\n')), 'module +none\n');
end

function expect_match (text, pattern)
  if isempty (regexp (text, pattern, 'once')), error ('"%s" has no %s', text, pattern); end
end

% Whatever tells a version takes it from one place.
function test_documents_and_build_have_the_version_of_the_toolbox ()
  root = mfilename ('fullpath');
  for up = 1:5, root = fileparts (root); end
  number = qn.impl.release ();
  expect_match (fileread (fullfile (root, 'CITATION.cff')), ['\nversion: ' strrep(number, '.', '\.') '\n']);
  expect_match (fileread (fullfile (root, 'CHANGELOG.md')), ['\n## ' strrep(number, '.', '\.') '( \(not released yet\))?\n']);
  for name = {'README.md', 'docs/install.md'}
    archives = regexp (fileread (fullfile (root, name{1})), 'quarn-(\d+\.\d+\.\d+)', 'tokens');
    for found = [archives{:}], expect_equal (found{1}, number); end
  end
end
