% FILES = FIND_FILES (FOLDER, PATTERN)  files below a folder whose names match a regular expression, a cell row, sorted
function files = find_files (folder, pattern)
  files = {};
  entries = dir (folder);
  for k = 1:numel (entries)
    name = entries(k).name;
    path = fullfile (folder, name);
    if entries(k).isdir
      if name(1) ~= '.', files = [files, find_files(path, pattern)]; end
    elseif ~isempty (regexp (name, pattern, 'once'))
      files{end + 1} = path;
    end
  end
  files = sort (files);
end
