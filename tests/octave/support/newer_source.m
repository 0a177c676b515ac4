% FILE = NEWER_SOURCE (SRC, MODULE)  the newest source below the folder SRC, where it is newer than the module in the folder MODULE; else ''
function file = newer_source (src, module)
  file = '';
  built = dir (fullfile (module, 'quarn.mex*'));
  if isempty (built), return, end
  [~, last] = max ([built.datenum]);
  % One process: dir of these folders would cost every suite of the tests more than the start of the host.
  [~, found] = system (sprintf ('find %s ''('' -name ''*.cpp'' -o -name ''*.h'' '')'' -newer %s -printf ''%%T@ %%p\\n'' | sort -n', in_quotes (src), ...
                                in_quotes (fullfile (module, built(last).name))));
  found = regexp (found, '[^\n]+', 'match');
  if ~isempty (found), file = regexprep (found{end}, '^\S+ ', ''); end
end
