% TEXTS = ERROR_TEXTS (FOLDER)  identifiers and texts of the defined errors in C++ sources, a cell row without repetitions
function texts = error_texts (folder)
  texts = {};
  files = find_files (folder, '\.cpp$');
  for k = 1:numel (files)
    code = fileread (files{k});
    % fail ("identifier", "text"), fail ("text"), and constants that a fail (name) takes.
    calls = regexp (code, 'host::fail\("([^"]*)"(?:, "([^"]*)")?', 'tokens');
    constants = regexp (code, 'constexpr const char\* \w+ = "([^"]*)"', 'tokens');
    texts = [texts, calls{:}, constants{:}];
  end
  texts = unique (texts(~cellfun (@isempty, texts)));
end
