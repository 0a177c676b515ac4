% REPORT_EQUATIONS (F, RECORDS)  time to solution at equal error
function report_equations (f, records)
  names = equation_names (records);
  if isempty (names), return; end
  fprintf (f, '\n## equations\n');
  for k = 1:numel (names)
    fprintf (f, '\n%s: ms to reach an error of\n\n%s', names{k}, equation_table (records, names{k}));
  end
end
