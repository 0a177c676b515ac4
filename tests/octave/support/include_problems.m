% PROBLEMS = INCLUDE_PROBLEMS (ROOT)  includes in the sources of a tree that go up, and kernels that reach the host
%
% PROBLEMS is a cell row of texts:
%   - an include of a folder of src that is not below the one of the file that includes it; folders of one line below do not know each other
%   - a file in a folder that is not listed below, or an include of one that is not there
%   - a file that is to know no host (see knows_no_host) and reaches a header of src/host, itself or through others
function problems = include_problems (root)
  % From the bottom to the top.
  rooms = {{'numbers'}, {'host'}, {'base'}, {'sparse'}, {'integration', 'nonlinear'}, {'handles'}, {'gateway/structures'}, {'gateway'}, ...
           {'uncalled'}};
  src = [strrep(fullfile (root, 'src'), '\\', '/') '/'];
  files = strrep (find_files (fullfile (root, 'src'), '\.(cpp|h)$'), '\\', '/');
  files = strrep (files, src, '');
  problems = {};
  included = cell (size (files));
  for k = 1:numel (files)
    level = level_of (files{k}, rooms);
    if level == 0, problems{end + 1} = sprintf ('src/%s is in a folder without a level', files{k}); end
    found = regexp (fileread ([src files{k}]), '^[ \t]*#[ \t]*include[ \t]+"([^"]+)"', 'tokens', 'lineanchors');
    included{k} = [found{:}];
    for name = reshape (included{k}, 1, [])
      below = level_of (name{1}, rooms);
      if ~any (strcmp (files, name{1}))
        problems{end + 1} = sprintf ('src/%s includes "%s", which is not in src', files{k}, name{1});
      elseif ~strcmp (room_of (name{1}), room_of (files{k})) && below >= level
        problems{end + 1} = sprintf ('src/%s includes "%s": includes go down only', files{k}, name{1});
      end
    end
  end
  for k = find (cellfun (@knows_no_host, files))
    way = way_to_host (files{k}, files, included, {});
    if ~isempty (way), problems{end + 1} = sprintf ('src/%s is to know no host: %s', files{k}, strjoin (way, ' includes ')); end
  end
  if isempty (files), problems{end + 1} = 'no sources found'; end
end

function room = room_of (file)
  room = fileparts (file);
end

function level = level_of (file, rooms)
  level = find (cellfun (@(names) any (strcmp (names, room_of (file))), rooms));
  if isempty (level), level = 0; end
end

% Kernels and what they are made of. In src/sparse these are all files but views, checks, products of host arrays and commands.
function yes = knows_no_host (file)
  switch room_of (file)
    case 'numbers', yes = true;
    case 'sparse', yes = isempty (regexp (file, '/(sparse_view|line_checks|mt_products|\w*_commands?|command_arguments)\.(h|cpp)$', 'once'));
    case 'integration'
      yes = ~isempty (regexp (file, '/(newmark_(kernels|fused|steps)|modal_forces|motion_energies|full_gain|knots)\.(h|cpp)$', 'once'));
    case 'nonlinear', yes = ~isempty (regexp (file, '/lin_interp\.(h|cpp)$', 'once'));
    otherwise, yes = false;
  end
end

% The files from FILE to a header of the host, in order; empty where there is no way.
function way = way_to_host (file, files, included, passed)
  way = {};
  k = find (strcmp (files, file));
  if isempty (k) || any (strcmp (passed, file)), return; end
  for name = reshape (included{k}, 1, [])
    if strcmp (room_of (name{1}), 'host')
      way = {file, name{1}};
      return;
    end
    way = way_to_host (name{1}, files, included, [passed, {file}]);
    if ~isempty (way)
      way = [{file}, way];
      return;
    end
  end
end
