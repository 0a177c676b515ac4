% FILES = FIND_FILES (FOLDER, PATTERN)  files below a folder whose names match a regular expression, a cell row, sorted
%
% Folders whose names begin with a dot are left out. One process looks: dir would take a tenth of a second for a hundred files.
function files = find_files (folder, pattern)
  [status, found] = system (sprintf ('find -L %s -mindepth 1 -name ''.*'' -type d -prune -o -type f -print', in_quotes (folder)));
  if status ~= 0, error ('%s: %s', folder, found); end
  files = reshape (regexp (found, '[^\n]+', 'match'), 1, []);
  names = regexprep (files, '^.*/', '');
  files = sort (files(~cellfun ('isempty', regexp (names, pattern, 'once'))));
end
