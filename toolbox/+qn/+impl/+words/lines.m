% TEXT = LINES (HEAD, FACTS)  a heading and under it FACTS, rows of two texts, a line each; those of nothing are left out
function text = lines (head, facts)
  facts = facts(~cellfun (@isempty, facts(:, 2)), :);
  width = max (cellfun (@numel, facts(:, 1)));
  text = head;
  for k = 1:size (facts, 1)
    text = sprintf ('%s\n  %-*s  %s', text, width, facts{k, 1}, facts{k, 2});
  end
end
