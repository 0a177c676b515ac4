% The page that the first user on another host sends.
function tests = suite_toolbox_report_host ()
  use_toolbox ();
  tests = localfunctions ();
end

% The lines of a part of the page, without their two blanks.
function lines = part (page, heading)
  all = strsplit (page, char (10), 'collapsedelimiters', false);
  at = find (strncmp (all, heading, numel (heading)));
  expect_equal (numel (at), 1);
  rest = all(at + 1:end);
  last = find (cellfun (@isempty, rest), 1) - 1;
  lines = regexprep (rest(1:last), '^  ', '');
end

function test_the_page_is_printed_and_returned_and_has_every_part ()
  printed = evalc ('text = qn.report_host ();');
  expect_equal (printed, text);
  expect_equal (isempty (strfind (text, 'FAILED')), true);
  v = qn.version ();
  versions = part (text, 'versions');
  for name = fieldnames (v).', expect_equal (any (strcmp (versions, strtrim (sprintf ('%-10s %s', name{1}, v.(name{1}))))), true); end
  libraries = part (text, 'libraries in this process');
  for name = {'quarn.mex', 'libstdc++.', 'libc.', 'libtbb.', 'liboctinterp.'}
    if ~any (~cellfun (@isempty, strfind (libraries, ['/' name{1}]))), error ('no %s among %s', name{1}, strjoin (libraries, ', ')); end
  end
  selftest = part (text, 'self-test');
  expect_equal (isempty (regexp (selftest{end}, '^(\d+) of \1 ok', 'once')), false);
end

% What the documents promise of this host; the lines on copies and literal numbers are there to be read.
function test_writes_arrive_in_variables_fields_and_cells_but_not_in_ranges ()
  evalc ('text = qn.report_host ();');
  for where = {'writes in place, in a function', 'writes in place, at the prompt'}
    lines = part (text, where{1});
    names = strtrim (cellfun (@(line) line(1:34), lines, 'uniformoutput', false));
    said = cellfun (@(line) line(36:end), lines, 'uniformoutput', false);
    expect_equal (numel (lines) >= 9, true);
    for k = 1:numel (lines)
      wanted = 'written, ';
      if strcmp (names{k}, 'range 1:3'), wanted = 'NOT written, a copy made before kept its value'; end
      if ~strncmp (said{k}, wanted, numel (wanted)), error ('%s, %s: "%s"', where{1}, names{k}, said{k}); end
    end
  end
  expect_equal (evalin ('base', 'exist (''quarn_report_y'') + exist (''quarn_report_copy'')'), 0);
end

function test_a_write_that_does_not_arrive_is_said ()
  expect_equal (qn.impl.host.written ('a', [1; 2], [1; 2], [1; 2]), [sprintf('%-34s ', 'a') 'NOT written, a copy made before kept its value']);
  expect_equal (qn.impl.host.written ('a', [1; 2], [7; 8], [7; 8]), [sprintf('%-34s ', 'a') 'written, a copy made before changed too']);
  expect_equal (qn.impl.host.written ('a', 1, 9.5, 1), [sprintf('%-34s ', 'a') 'CHANGED to 9.5 , a copy made before kept its value']);
end

function test_objects_errors_and_fifty_rounds_of_unloading ()
  evalc ('text = qn.report_host ();');
  lines = strjoin (part (text, 'old-style objects'), char (10));
  expect_in (lines, 'class v_handle, isobject 1, isstruct 0');
  expect_equal (numel (strfind (lines, 'as expected')), 4);
  expect_equal (isempty (strfind (lines, 'NOT')), true);
  errors = part (text, 'errors of the module');
  expect_in (errors{1}, 'Unknown command');
  expect_in (errors{2}, 'quarn tbbp : expected 4 inputs');
  expect_in (errors{3}, '[KORV:quarn:NonHandle]');
  lines = part (text, 'unloading');
  expect_in (lines{1}, '50 of 50 products right, each followed by clear');
  counts = sscanf (lines{2}, 'threads of the process: %d before, %d after a product, %d after clear');
  expect_equal (counts(3), counts(1));
  expect_equal (counts(2) > counts(1), true);
end

function test_registered_handles_stay_and_the_module_is_not_unloaded ()
  index = quarn ('chandleset', 1, qn.pack (2));
  evalc ('text = qn.report_host ();');
  keys = quarn ('chandleget');
  quarn ('chandleclear', index);
  expect_equal (keys, index);
  expect_in (text, 'not tried: 1 of the user''s handles would be lost');
end

function test_nothing_is_left_behind ()
  [folder, away] = new_folder ();
  here = cd (folder);
  back = onCleanup (@() cd (here));
  windows = get (0, 'children');
  route = path ();
  evalc ('qn.report_host ();');
  expect_equal (numel (dir (folder)), 2);
  expect_equal (get (0, 'children'), windows);
  expect_equal (path (), route);
  expect_equal (quarn ('chandleget'), zeros (0, 1));
end

% Parts that need the module say that they failed; the others are there.
function test_without_the_module_the_page_says_so ()
  [status, text] = octave_says (sprintf ('addpath (''%s''); qn.report_host (); exit (7);', fileparts (fileparts (which ('qn.run')))));
  expect_equal (status, 7);
  expect_in (text, sprintf ('module     none\n'));
  expect_in (text, 'FAILED  module          no folder on the path holds the compiled module');
  for heading = {'libraries in this process', 'writes in place, in a function', 'old-style objects', 'unloading'}
    lines = part (text, heading{1});
    if strcmp (heading{1}, 'unloading'), lines = lines(1); end
    expect_in (lines{1}, 'FAILED: ');
    expect_in (lines{1}, 'is not on the path');
  end
end
