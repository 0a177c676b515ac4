% FILE = NEWER_SOURCE (SRC, MODULE)  the newest source below the folder SRC, where it is newer than the module in the folder MODULE; else ''
function file = newer_source (src, module)
  file = '';
  built = dir (fullfile (module, 'quarn.mex*'));
  if isempty (built), return, end
  files = find_files (src, '\.(cpp|h)$');
  [newest, k] = max ([cellfun(@time_of, files), 0]);
  if newest > max ([built.datenum]), file = files{k}; end
end

function t = time_of (file)
  entry = dir (file);
  t = entry.datenum;
end
