% BLOCKS = DOCUMENT_BLOCKS (FILE, LANGUAGE)  fenced blocks of a Markdown file in that language
%
% BLOCKS is a struct array: line (of the fence, from 1) and code. A fence that is not closed is an error.
function blocks = document_blocks (file, language)
  lines = document_lines (file);
  blocks = struct ('line', {}, 'code', {});
  opened = 0;
  for k = 1:numel (lines)
    fence = regexp (lines{k}, '^\s*```\s*(\S*)', 'tokens', 'once');
    if isempty (fence), continue, end
    if opened == 0
      opened = k;
      name = fence{1};
    else
      if strcmp (name, language)
        blocks(end + 1) = struct ('line', opened, 'code', strjoin (lines(opened + 1:k - 1), char (10)));
      end
      opened = 0;
    end
  end
  if opened > 0, error ('%s: the block that opens at line %d is not closed', file, opened); end
end
