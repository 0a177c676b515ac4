% HEADINGS = DOCUMENT_HEADINGS (FILE)  texts of the # headings of a Markdown file, fenced blocks left out, a cell row
function headings = document_headings (file)
  found = regexp (prose_lines (file), '^#+\s+(.*?)\s*$', 'tokens', 'once');
  found = found(~cellfun (@isempty, found));
  headings = cellfun (@(t) t{1}, found, 'UniformOutput', false).';
end
