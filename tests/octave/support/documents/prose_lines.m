% LINES = PROSE_LINES (FILE)  lines of a Markdown file; those of fenced blocks are empty
%
% A text that has been looked at before is not taken apart again.
function lines = prose_lines (file)
  persistent known
  if isempty (known), known = containers.Map ('KeyType', 'char', 'ValueType', 'any'); end
  text = fileread (file);
  if known.isKey (text)
    lines = known(text);
    return
  end
  lines = document_lines (file);
  inside = false;
  for k = 1:numel (lines)
    fence = ~isempty (regexp (lines{k}, '^\s*```', 'once'));
    if fence || inside, lines{k} = ''; end
    if fence, inside = ~inside; end
  end
  known(text) = lines;
end
