% LINES = VALIDATION_TEXT (RECORDS)  docs/validation.md as lines, from what expect_published recorded
function lines = validation_text (records)
  cases = [records.case];
  titles = unique ({cases.title}, 'stable');
  lines = {'# Validation'; ''; ...
           'Published and closed-form cases beside what quarn gives. The values come from the tests (`expect_published` in'; ...
           '`tests/octave/suites`), which fail outside the tolerances below. This page is made of them by one command,'; ''; ...
           '    scripts/validation'; ''; ...
           'and a test compares it with them. Differences and tolerances have the unit of the quantity; values may differ in their last'; ...
           'digits from machine to machine.'; ''; ...
           sprintf('%d cases, %d values.', numel (titles), numel (records)); ''; ...
           '## What each case shows'; ''; '| part | | cases |'; '|---|---|---|'};
  parts = validation_parts ();
  for k = 1:size (parts, 1)
    shown = find (cellfun (@(t) any (strcmp (parts{k, 1}, first_of (cases, t).shows)), titles));
    links = arrayfun (@(n) sprintf ('[%d](#%s)', n, anchor (n, titles{n})), shown, 'uniformoutput', false);
    lines{end + 1} = sprintf ('| %s | %s | %s |', parts{k, :}, strjoin (links, ', '));
  end
  for n = 1:numel (titles)
    c = first_of (cases, titles{n});
    lines = [lines; {''; sprintf('## %d. %s', n, titles{n}); ''; sprintf('*Source:* %s.', c.source); ''; ...
                     '| quantity | reference | quarn | difference | tolerance |'; '|---|---|---|---|---|'}];
    for r = records(strcmp ({cases.title}, titles{n}))
      lines{end + 1} = sprintf ('| %s | %.10g | %.7g | %.1e | %.2g |', r.quantity, r.reference, r.value, abs (r.value - r.reference), ...
                                r.tolerance);
    end
  end
end

function c = first_of (cases, title)
  c = cases(find (strcmp ({cases.title}, title), 1));
end

% What a heading is called in a link.
function a = anchor (n, title)
  a = regexprep (lower (sprintf ('%d. %s', n, title)), '[^\w\s-]', '');
  a = regexprep (a, '\s', '-');
end
