% LINES = PROSE_LINES (FILE)  lines of a Markdown file; those of fenced blocks are empty
function lines = prose_lines (file)
  lines = document_lines (file);
  inside = false;
  for k = 1:numel (lines)
    fence = ~isempty (regexp (lines{k}, '^\s*```', 'once'));
    if fence || inside, lines{k} = ''; end
    if fence, inside = ~inside; end
  end
end
