% REPORT_GROUP (F, GROUP, RECORDS)  tables of a group, one a variant
function report_group (f, group, records)
  all = select (records, group);
  if isempty (all), return; end
  fprintf (f, '\n## %s\n', group);
  variants = unique ({all.variant}, 'stable');
  for v = 1:numel (variants)
    fprintf (f, '\n%s; ns per piece of work (quarn''s time as a multiple of the program''s)\n\n%s', variants{v}, ...
             variant_table (records, group, variants{v}));
  end
end
