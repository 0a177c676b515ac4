% M = DMIG_MATRIX (T, H, PLACE, X, LINE)  one matrix from its head H and its terms (see dmig_terms)
function m = dmig_matrix (t, h, place, x, line)
  forms = {'square', 'rectangular', '', '', '', 'symmetric', '', '', 'rectangular'};
  v = x(:, 1);
  if h.type > 2 && h.polar, v = x(:, 1) .* exp (1i * pi / 180 * x(:, 2)); end
  if h.type > 2 && ~h.polar, v = complex (x(:, 1), x(:, 2)); end
  k = find (x(:, 2) ~= 0, 1);
  if h.type < 3 && ~isempty (k), qn.impl.formats.refuse (t, line(k), 'a second number in a term of the real matrix "%s"', h.name); end
  kind = 'general';
  if h.form == 6, kind = 'symmetric'; end
  if any (h.form == [2 9])
    [columns, unused, j] = unique (place(:, 1:2), 'rows');
    [rows, unused, i] = unique (place(:, 3:4), 'rows');
  else
    n = size (place, 1);
    [rows, unused, k] = unique ([place(:, 1:2); place(:, 3:4)], 'rows');
    [j, i] = deal (k(1:n), k(n + 1:end));
    columns = rows;
  end
  say = @(k, varargin) qn.impl.formats.refuse (t, line(k), varargin{:});
  a = qn.impl.formats.entries (say, i(:), j(:), v, [size(rows, 1), size(columns, 1)], kind, 'refuse');
  m = struct ('name', h.name, 'matrix', a, 'form', forms{h.form}, 'rows', rows, 'columns', columns);
end
