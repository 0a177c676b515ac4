% TEXT = VARIANT_TABLE (RECORDS, GROUP, VARIANT)  one row a size: ns per piece of work, in brackets quarn's time over the program's
function text = variant_table (records, group, variant)
  t = select (records, group, variant);
  programs = unique ({t.program}, 'stable');
  ours = find (strncmp (programs, 'quarn', 5), 1);
  text = sprintf ('| size |%s\n|---:|%s\n', sprintf (' %s |', programs{:}), repmat ('---:|', 1, numel (programs)));
  for s = unique ([t.size])
    row = nan (1, numel (programs));
    for p = 1:numel (programs)
      hit = find ([t.size] == s & strcmp ({t.program}, programs{p}), 1);
      if ~isempty (hit), row(p) = 1e9 * t(hit).seconds / t(hit).units; end
    end
    text = [text, sprintf('| %d |', s)];
    for p = 1:numel (programs)
      ratio = '';
      if p ~= ours && ~isempty (ours), ratio = [' (' short_number(row(ours) / row(p)) ')']; end
      text = [text, sprintf(' %s%s |', short_number (row(p)), ratio)];
    end
    text = [text, sprintf('\n')];
  end
end
