function tests = suite_toolbox_help ()
  use_toolbox ();
  tests = localfunctions ();
end

function folder = toolbox ()
  folder = fileparts (fileparts (which ('qn.run')));
end

function test_every_function_has_all_sections_of_help ()
  list = toolbox_functions ();
  if size (list, 1) < 45, error ('only %d functions found', size (list, 1)); end
  for k = 1:size (list, 1)
    if strcmp (list{k, 1}, 'quarn'), continue, end
    lines = help_lines (list{k, 2});
    for heading = {'Purpose', 'Calls', 'Input', 'Errors', 'Example', 'See also'}
      if ~any (strncmp (lines, heading{1}, numel (heading{1}))) && ~strcmp ([list{k, 1} heading{1}], 'qn.plot.pageInput')
        error ('%s: no section "%s"', list{k, 1}, heading{1});
      end
    end
    names_itself = ~isempty (strfind (lower (lines{1}), list{k, 1}));
    if ~names_itself, error ('%s: the first line of its help is "%s"', list{k, 1}, lines{1}); end
    code = fileread (list{k, 2});
    first = regexp (code, '(^|\n)function [^\n]*', 'match', 'once');
    gives = any (first == '=');
    if gives && ~any (strncmp (lines, 'Output', 6)), error ('%s: no section "Output"', list{k, 1}); end
  end
end

function test_every_example_in_the_help_runs ()
  list = toolbox_functions ();
  hidden = get (0, 'defaultfigurevisible');
  set (0, 'defaultfigurevisible', 'off');
  back = onCleanup (@() set (0, 'defaultfigurevisible', hidden));
  ran = 0;
  for k = 1:size (list, 1)
    code = strjoin (help_lines (list{k, 2}, 'Example'), sprintf ('\n'));
    if isempty (strtrim (code)), error ('%s has no example', list{k, 1}); end
    try
      run_it (code);
    catch err
      error ('the example of %s fails: %s', list{k, 1}, err.message);
    end
    close ('all');
    if ~isempty (quarn ('chandleget'))
      error ('the example of %s leaves handles behind', list{k, 1});
    end
    ran = ran + 1;
  end
  expect_equal (ran, size (list, 1));
end

function run_it (code)
  evalc (code);
end

function test_what_is_named_under_see_also_exists ()
  list = toolbox_functions ();
  for k = 1:size (list, 1)
    lines = help_lines (list{k, 2});
    at = find (strncmp (lines, 'See also', 8), 1);
    text = strjoin (lines(at:end), ' ');
    names = strtrim (strsplit (text(9:end), ','));
    for name = names
      if ~any (strcmp (name{1}, list(:, 1))), error ('%s: there is no %s to see', list{k, 1}, name{1}); end
    end
  end
end

function test_the_help_of_quarn_names_every_function ()
  list = toolbox_functions ();
  text = strjoin (help_lines (fullfile (toolbox (), 'quarn.m')), sprintf ('\n'));
  for k = 1:size (list, 1)
    if isempty (strfind (text, list{k, 1})) && ~strcmp (list{k, 1}, 'delete')
      error ('the help of quarn does not name %s', list{k, 1});
    end
  end
end

% One line a function: its name, and the first line of its help without it. The groups are those of the help of quarn.
function test_the_contents_of_the_package_are_its_functions ()
  lines = help_lines (fullfile (toolbox (), '+qn', 'Contents.m'));
  found = regexp (lines, '^  (\S+) +- (.*)$', 'tokens', 'once');
  found = found(~cellfun (@isempty, found));
  list = toolbox_functions ();
  list = list(strncmp (list(:, 1), 'qn.', 3), :);
  expect_equal (sort (cellfun (@(f) ['qn.' f{1}], found, 'uniformoutput', false)), sort (list(:, 1)).');
  for f = found
    first = help_lines (list{strcmp (list(:, 1), ['qn.' f{1}{1}]), 2});
    said = regexprep (first{1}, '^\S+ +', '');
    if ~strcmp (f{1}{2}, said), error ('Contents.m says of %s "%s", its help "%s"', f{1}{1}, f{1}{2}, said); end
  end
  groups = fileread (fullfile (toolbox (), 'quarn.m'));
  for head = lines(~cellfun (@isempty, regexp (lines, '^ ?[A-Z][a-z ]+$', 'once')))
    if isempty (regexp (groups, ['\n%   ' lower(strtrim (head{1})) '  '], 'once'))
      error ('Contents.m has the group "%s", the help of quarn has not', head{1});
    end
  end
end

function test_the_help_file_steps_behind_the_module ()
  code = sprintf (['addpath (''%s''); addpath (''%s''); y = zeros (1, 1); quarn (''tbbp'', qn.pack (3), 2 + 0, y); ' ...
                   'if y ~= 6 || quarn () ~= 1.0001, exit (3); end'], fileparts (which ('quarn')), toolbox ());
  expect_equal (system (sprintf ('octave-cli --no-history -qf --eval "%s"', code)), 0);
  alone = sprintf ('addpath (''%s''); try, quarn (); catch e, if isempty (strfind (e.message, ''not on the path'')), exit (3); end, end', toolbox ());
  expect_equal (system (sprintf ('octave-cli --no-history -qf --eval "%s"', alone)), 0);
end

% What only one of the two hosts understands.
function test_the_code_keeps_to_syntax_that_both_hosts_share ()
  files = [dir_of('+qn'); dir_of(fullfile ('+qn', '+impl')); dir_of(fullfile ('+qn', '+impl', '+laws')); ...
           dir_of(fullfile ('+qn', '+impl', '+sweep')); dir_of(fullfile ('+qn', '+impl', '+rotor')); dir_of(fullfile ('+qn', '+plot')); ...
           dir_of(fullfile ('+qn', '+impl', '+formats')); dir_of(fullfile ('+qn', '+impl', '+page')); dir_of(fullfile ('+qn', '+impl', '+host')); ...
           dir_of(fullfile ('+qn', '+impl', '+files')); dir_of(fullfile ('+qn', '+impl', '+user')); dir_of(fullfile ('+qn', '+impl', '+words')); ...
           dir_of('@chandle'); dir_of('@v_handle'); dir_of(''); dir_of('examples'); dir_of(fullfile ('examples', 'private'))];
  if numel (files) < 85, error ('only %d files found', numel (files)); end
  patterns = {'^\s*end(if|for|while|function|switch|_try_catch)\>', '(^|[^%''])!=?\s*[\w(]', '[+*/-]=[^=]', '\<printf\>', ...
              '"[^"\n]*"[ \t]*[,);]', 'unwind_protect', '^\s*#', '\+\+', '\)[ \t]*\(', '\<strjust\>|\<columns \(|\<rows \('};
  for k = 1:numel (files)
    text = fileread (files{k});
    lines = strsplit (text, sprintf ('\n'));
    if numel (lines) > 150, error ('%s has %d lines', files{k}, numel (lines)); end
    lines = strsplit (text, sprintf ('\n'), 'CollapseDelimiters', false);
    % All lines in one text, each at its number: without comments, and texts as ''.
    code = regexprep (text, '^[ \t]*%[^\n]*', '', 'lineanchors');
    if any (cellfun ('length', strsplit (code, sprintf ('\n'))) > 140), error ('%s has lines of more than 140 columns', files{k}); end
    code = regexprep (regexprep (code, '''[^''\n]*''', ''''''), '%[^\n]*', '');
    for p = patterns
      at = regexp (code, p{1}, 'start', 'once', 'lineanchors');
      if isempty (at), continue, end
      j = 1 + sum (code(1:at) == 10);
      error ('%s:%d: "%s" matches %s', files{k}, j, lines{j}, p{1});
    end
  end
end

function files = dir_of (folder)
  found = dir (fullfile (toolbox (), folder, '*.m'));
  files = cellfun (@(name) fullfile (toolbox (), folder, name), {found.name}.', 'uniformoutput', false);
end
