% TABLES = SOURCE_TABLES (ROOT)  what the tables of the sources below ROOT hold, whichever files they are in
%
%   commands   words of the rows {"word", commandName}
%   laws       keywords of the rows row("Keyword", ...)
%   types      codes of the handle types that are made, as texts; a name in front of make<...> stands for its value "name = 10"
%
% Cell rows of texts, in the order of the tables.
function tables = source_tables (root)
  if nargin < 1, root = project_folder (); end
  files = find_files (fullfile (root, 'src'), '\.(cpp|h)$');
  code = cellfun (@fileread, files, 'uniformoutput', false);
  code = [code{:}];
  tables = struct ('commands', {words(code, '{"([^"]+)", command\w')}, 'laws', {words(code, '\srow\("([^"]+)"')}, 'types', {{}});
  lines = strsplit (code, sprintf ('\n'));
  made = find (~cellfun ('isempty', strfind (lines, 'make<')));
  made = strjoin (lines(union (made - 1, made)), sprintf ('\n'));
  for name = words (made, '([\w:]+)\s*[:,{]\s*(?:h\s*=\s*|return\s+|&)?make<')
    last = regexprep (name{1}, '^.*:', '');
    if isempty (regexp (last, '^\d+$', 'once'))
      value = words (code, ['\<' last '\s*=\s*(\d+)']);
      if isempty (value), error ('the value of the handle type %s is not found', name{1}); end
      last = value{1};
    end
    tables.types{end + 1} = last;
  end
end

function found = words (code, pattern)
  found = regexp (code, pattern, 'tokens');
  found = reshape ([found{:}], 1, []);
end
