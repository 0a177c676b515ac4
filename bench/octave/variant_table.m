% TEXT = VARIANT_TABLE (RECORDS, GROUP, VARIANT)  one row a size: ns per piece of work, in brackets quarn's time over the program's
% TEXT = VARIANT_TABLE (RECORDS, GROUP, '*')      one row a variant, of groups with one size
function text = variant_table (records, group, variant)
  head = 'size |%s\n|---:';
  if strcmp (variant, '*')
    t = select (records, group);
    rows = {t.variant};
    head = 'of |%s\n|---';
  else
    t = select (records, group, variant);
    rows = arrayfun (@num2str, [t.size], 'uniformoutput', false);
  end
  programs = unique ({t.program}, 'stable');
  ours = find (strncmp (programs, 'quarn', 5), 1);
  text = sprintf (['| ' head '|%s\n'], sprintf (' %s |', programs{:}), repmat ('---:|', 1, numel (programs)));
  for name = unique (rows, 'stable')
    row = nan (1, numel (programs));
    for p = 1:numel (programs)
      hit = find (strcmp (rows, name{1}) & strcmp ({t.program}, programs{p}), 1);
      if ~isempty (hit), row(p) = 1e9 * t(hit).seconds / t(hit).units; end
    end
    text = [text, sprintf('| %s |', name{1})];
    for p = 1:numel (programs)
      ratio = '';
      if p ~= ours && ~isempty (ours), ratio = [' (' short_number(row(ours) / row(p)) ')']; end
      text = [text, sprintf(' %s%s |', short_number (row(p)), ratio)];
    end
    text = [text, sprintf('\n')];
  end
end
