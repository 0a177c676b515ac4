% TEXT = PARTS_TABLE (RECORDS, GROUP)  one row a variant and size: ns of the whole, and of each part with its share of the whole
function text = parts_table (records, group)
  t = select (records, group);
  variants = unique ({t.variant}, 'stable');
  names = unique ({t.program}, 'stable');
  parts = names(~strcmp (names, 'whole') & ~strcmp (names, 'rest'));
  if any (strcmp (names, 'rest')), parts{end + 1} = 'rest'; end
  text = sprintf ('| | size | whole [ns] |%s\n|---|---:|---:|%s\n', sprintf (' %s |', parts{:}), repmat ('---:|', 1, numel (parts)));
  for v = 1:numel (variants)
    own = t(strcmp ({t.variant}, variants{v}));
    for s = unique ([own.size])
      row = own([own.size] == s);
      whole = row(strcmp ({row.program}, 'whole')).seconds;
      text = [text, sprintf('| %s | %d | %s |', variants{v}, s, short_number (1e9 * whole))];
      for p = 1:numel (parts)
        hit = find (strcmp ({row.program}, parts{p}), 1);
        if isempty (hit), text = [text, ' |']; continue; end
        text = [text, sprintf(' %s (%s %%) |', short_number (1e9 * row(hit).seconds), sprintf ('%.1f', 100 * row(hit).seconds / whole))];
      end
      text = [text, sprintf('\n')];
    end
  end
end
