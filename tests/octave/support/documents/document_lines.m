% LINES = DOCUMENT_LINES (FILE)  lines of a text file, a cell column
function lines = document_lines (file)
  lines = strsplit (strrep (fileread (file), char (13), ''), char (10), 'CollapseDelimiters', false).';
end
