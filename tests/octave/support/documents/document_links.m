% LINKS = DOCUMENT_LINKS (FILE)  targets of the links and images of a Markdown file that lead to a place in the tree, a cell row
function links = document_links (file)
  text = strjoin (prose_lines (file).', char (10));
  found = regexp (text, '\]\(([^)\s]+)\)', 'tokens');
  links = [found{:}];
  if isempty (links), links = {}; end
  outside = ~cellfun (@isempty, regexp (links, '^[a-z]+:', 'once'));
  links = links(~outside);
end
