% LIST = OP4_TEXT (T)  the matrices of an OUTPUT4 file that is text
function list = op4_text (t)
  list = struct ('name', {}, 'matrix', {}, 'form', {}, 'precision', {});
  k = 1;
  n = numel (t.first);
  while k <= n
    if isempty (strtrim (t.text(t.first(k):t.last(k))))
      k = k + 1;
      continue
    end
    head = k;
    h = header (t, k);
    k = k + 1;
    parts = cell (0, 3);
    before = 0;
    while true
      [record, width] = integers (t, k, 3);
      if isempty (record)
        qn.impl.formats.refuse (t, min (k, n), 'a column of matrix "%s" expected: number, row and count of values', h.name);
      end
      k = k + 1;
      if record(1) > h.columns, break, end
      if record(1) <= before, qn.impl.formats.refuse (t, k - 1, 'column %d after column %d; columns must ascend', record(1), before); end
      before = record(1);
      if record(2) > 0
        [i, v, k] = dense (t, k, h, record);
      else
        [i, v, k] = strings (t, k, h, record, width);
      end
      parts(end + 1, :) = {i, before * ones(numel (i), 1), v};
    end
    if record(1) ~= h.columns + 1, qn.impl.formats.refuse (t, k - 1, 'column %d of %d', record(1), h.columns); end
    qn.impl.formats.line_of (t, k, 'the value that ends a matrix');
    k = k + 1;
    say = @(varargin) qn.impl.formats.refuse (t, head, varargin{:});
    none = zeros (0, 1);
    list(end + 1) = qn.impl.formats.op4_matrix (say, h, cat (1, none, parts{:, 1}), cat (1, none, parts{:, 2}), cat (1, none, parts{:, 3}));
  end
end

% Numbers of eight columns each, in wide heads of sixteen for rows and columns.
function h = header (t, k)
  text = [t.text(t.first(k):t.last(k)), repmat(' ', 1, 80)];
  wide = [];
  for first = [8 16]
    c = char (text(1:first), text(first + (1:first)), text(2 * first + (1:8)), text(2 * first + (9:16)));
    [x, good, unused, unused2, blank] = qn.impl.formats.parse (c);
    if all (good & ~blank & x == fix (x)) && any (x(4) == 1:4), wide = first; end
    if ~isempty (wide), break, end
  end
  if isempty (wide)
    qn.impl.formats.refuse (t, k, '"%s" is no head of a matrix: columns, rows, form and type (1 to 4) as whole numbers expected', ...
                            qn.impl.formats.shown (text));
  end
  rest = text(2 * wide + 17:end);
  layout = strtrim (strtok ([rest(9:end) ' '], '|'));
  h = struct ('name', strtrim (rest(1:8)), 'columns', x(1), 'rows', abs (x(2)), 'form', x(3), 'type', x(4), 'big', x(2) < 0, ...
              'layout', qn.impl.formats.fortran (layout));
  if isempty (layout), h.layout = qn.impl.formats.fortran ('1P,5E16.9'); end
  if isempty (h.layout) || h.layout.whole
    qn.impl.formats.refuse (t, k, 'the format "%s"; one of real numbers, such as 1P,5E16.9, expected', qn.impl.formats.shown (layout));
  end
  why = qn.impl.formats.op4_head (h, qn.impl.formats.dimension_limit (t));
  if ~isempty (why), qn.impl.formats.refuse (t, k, '%s', why); end
end

% Whole numbers that fill line K, each eight columns wide or each sixteen; [] where it is another line.
function [x, width] = integers (t, k, count)
  x = [];
  width = 8;
  if k < 1 || k > numel (t.first), return, end
  text = deblank (t.text(t.first(k):t.last(k)));
  if numel (text) > 8 * count, width = 16; end
  if isempty (text) || numel (text) > width * count, return, end
  text(end + 1:width * count) = ' ';
  [y, good, point, exponent, blank] = qn.impl.formats.parse (reshape (text, width, []).');
  if all (good & ~blank & ~point & ~exponent & y >= 0), x = y; end
end

% The count is that of the printed numbers; some write it in words, of which a double has two.
function [i, v, k] = dense (t, k, h, record)
  counts = record(3);
  if mod (h.type, 2) == 0 && mod (record(3), 2) == 0, counts = record(3) ./ [1 2]; end
  for count = counts
    next = k + ceil (count / h.layout.per);
    if ~isempty (integers (t, next, 3)) && count == filled (t, k, next - 1, h), break, end
    next = 0;
  end
  if next == 0, count = record(3); end
  qn.impl.formats.fits (t, k - 1, count, {'the count of values'});
  [x, k] = qn.impl.formats.items (t, k, count, h.layout, sprintf ('column %d of "%s"', record(1), h.name));
  v = values (t, k - 1, h, x);
  i = record(2) + (0:numel (v) - 1).';
  if ~isempty (i) && i(end) > h.rows, qn.impl.formats.refuse (t, k - 1, 'values to row %d of %d', i(end), h.rows); end
end

function n = filled (t, from, to, h)
  n = NaN;
  if to > numel (t.first), return, end
  c = qn.impl.formats.block (t, from, to - from + 1, h.layout.per * h.layout.width, 'values');
  n = sum (any (reshape (c.', h.layout.width, []).' ~= ' ', 2));
end

function [i, v, k] = strings (t, k, h, record, width)
  words = [1 2 2 4];
  per_value = words(h.type);
  numbers = [1 1 2 2];
  done = 0;
  before = 0;
  [i, v] = deal (cell (0, 1));
  while done < record(3)
    x = integers (t, k, 1 + h.big);
    if isempty (x)
      qn.impl.formats.refuse (t, min (k, numel (t.first)), 'column %d of "%s": the head of a string of values expected', record(1), h.name);
    end
    if h.big
      [long, row] = deal (x(1) - 1, x(2));
    else
      [long, row] = deal (floor (x / 65536) - 1, mod (x, 65536));
    end
    count = long / per_value;
    if long < 1 || count ~= fix (count) || row < 1 || row + count - 1 > h.rows || done + long + 1 + h.big > record(3)
      qn.impl.formats.refuse (t, k, 'a string of %.15g words from row %.15g on does not fit %d rows and the %d words of its column', ...
                              long, row, h.rows, record(3));
    end
    if row <= before
      qn.impl.formats.refuse (t, k, 'column %d of "%s": a string from row %d on, after one to row %d', record(1), h.name, row, before);
    end
    before = row + count - 1;
    [x, next] = qn.impl.formats.items (t, k + 1, count * numbers(h.type), h.layout, sprintf ('column %d of "%s"', record(1), h.name));
    v{end + 1, 1} = values (t, k, h, x);
    i{end + 1, 1} = row + (0:count - 1).';
    k = next;
    done = done + long + 1 + h.big;
  end
  [i, v] = deal (cat (1, zeros (0, 1), i{:}), cat (1, zeros (0, 1), v{:}));
end

function v = values (t, k, h, x)
  v = x;
  if h.type < 3, return, end
  if mod (numel (x), 2), qn.impl.formats.refuse (t, k, '%d numbers for complex values; an even count expected', numel (x)); end
  v = complex (x(1:2:end), x(2:2:end));
end
