% T = TABLE_OF (OPT, IOPT, COLUMNS)  the table in an element's parameters: a column of knots and COLUMNS of values
function t = table_of (opt, iopt, columns)
  n = iopt(8);
  t = reshape (opt(iopt(6) + (1:n * (1 + columns))), n, 1 + columns);
end
