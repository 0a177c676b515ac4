% LIST = OP4_BINARY (T, ORDER, WORD)  the matrices of a binary OUTPUT4 file: ORDER 'little' or 'big', whole numbers of WORD bytes
%
% A file is records, each between two markers of its length. Real numbers are as wide as a word for types 1 and 3, twice as wide for 2
% and 4, which have not been met with words of eight bytes.
function list = op4_binary (t, order, word)
  list = struct ('name', {}, 'matrix', {}, 'form', {}, 'precision', {});
  f = struct ('t', t, 'bytes', t.bytes, 'swap', strcmp (order, 'big'), 'word', word);
  at = 0;
  while at < numel (f.bytes)
    head = at;
    [payload, at] = record (f, at);
    if numel (payload) ~= 24 * word / 4, stop (f, head, 'a head of %d bytes; %d expected', numel (payload), 24 * word / 4); end
    x = whole (f, payload(1:4 * word));
    name = char (payload(4 * word + 1:end));
    if word == 8, name = name([1:4, 9:12]); end
    h = struct ('name', strtrim (qn.impl.formats.shown (name)), 'columns', x(1), 'rows', abs (x(2)), 'form', x(3), 'type', x(4), ...
                'big', x(2) < 0);
    why = qn.impl.formats.op4_head (h, qn.impl.formats.dimension_limit (t));
    if isempty (why) && word == 8 && mod (h.type, 2) == 0, why = sprintf ('type %d with whole numbers of 64 bits is not read', h.type); end
    if ~isempty (why), stop (f, head, '%s', why); end
    parts = cell (0, 3);
    before = 0;
    while true
      from = at;
      [payload, at] = record (f, at);
      if numel (payload) < 3 * word, stop (f, from, 'a column record of %d bytes; %d or more expected', numel (payload), 3 * word); end
      x = whole (f, payload(1:3 * word));
      if x(1) > h.columns, break, end
      if x(1) <= before, stop (f, from, 'column %.15g after column %d; columns must ascend', x(1), before); end
      if x(2) < 0 || x(2) > h.rows || x(3) < 0
        stop (f, from, 'column %d begins at row %.15g of %d and has %.15g words', x(1), x(2), h.rows, x(3));
      end
      if numel (payload) ~= (3 + x(3)) * word
        stop (f, from, 'column %d has %.15g words, its record %d bytes; %.15g expected', x(1), x(3), numel (payload), (3 + x(3)) * word);
      end
      before = x(1);
      [i, v] = column (f, from, h, x, payload(3 * word + 1:end));
      parts(end + 1, :) = {i, before * ones(numel (i), 1), v};
    end
    if x(1) ~= h.columns + 1, stop (f, from, 'column %.15g of %d', x(1), h.columns); end
    say = @(varargin) stop (f, head, varargin{:});
    none = zeros (0, 1);
    list(end + 1) = qn.impl.formats.op4_matrix (say, h, cat (1, none, parts{:, 1}), cat (1, none, parts{:, 2}), cat (1, none, parts{:, 3}));
  end
end

function stop (f, at, varargin)
  error ('qn:input', '%s: %s, byte %d: %s', f.t.who, f.t.file, at, sprintf (varargin{:}));
end

function x = of_class (f, bytes, name)
  x = typecast (bytes, name);
  if f.swap, x = swapbytes (x); end
  x = double (x(:));
end

function x = whole (f, bytes)
  x = of_class (f, bytes, sprintf ('int%d', 8 * f.word));
end

function [payload, next] = record (f, at)
  n = numel (f.bytes);
  if at + 8 > n, stop (f, at, 'the file ends early: a record expected'); end
  long = of_class (f, f.bytes(at + (1:4)), 'int32');
  if long < 0, stop (f, at, 'a record in several pieces; these are not read'); end
  next = at + long + 8;
  if next > n, stop (f, at, 'the file ends early: a record of %d bytes begins here, %d are left', long, n - at - 4); end
  payload = f.bytes(at + 4 + (1:long));
  again = of_class (f, f.bytes(next - 3:next), 'int32');
  if again ~= long, stop (f, at, 'a record of %d bytes begins here, and ends as one of %.15g', long, again); end
end

function [i, v] = column (f, from, h, x, bytes)
  if x(2) > 0
    v = numbers (f, from, h, bytes);
    i = x(2) + (0:numel (v) - 1).';
    if ~isempty (i) && i(end) > h.rows, stop (f, from, 'values to row %.15g of %d', i(end), h.rows); end
    return
  end
  heads = (1 + h.big) * f.word;
  [i, v] = deal (cell (0, 1));
  at = 0;
  before = 0;
  while at < numel (bytes)
    if at + heads > numel (bytes), stop (f, from, 'column %d ends within a string of values', x(1)); end
    y = whole (f, bytes(at + (1:heads)));
    if h.big
      [long, row] = deal (y(1) - 1, y(2));
    else
      [long, row] = deal (floor (y / 65536) - 1, mod (y, 65536));
    end
    at = at + heads;
    if long < 1 || row < 1 || at + long * f.word > numel (bytes)
      stop (f, from, 'column %d: a string of %.15g words from row %.15g on does not fit its record', x(1), long, row);
    end
    v{end + 1, 1} = numbers (f, from, h, bytes(at + (1:long * f.word)));
    i{end + 1, 1} = row + (0:numel (v{end}) - 1).';
    if i{end}(end) > h.rows, stop (f, from, 'values to row %.15g of %d', i{end}(end), h.rows); end
    if row <= before, stop (f, from, 'column %d: a string from row %.15g on, after one to row %d', x(1), row, before); end
    before = i{end}(end);
    at = at + long * f.word;
  end
  [i, v] = deal (cat (1, zeros (0, 1), i{:}), cat (1, zeros (0, 1), v{:}));
end

function v = numbers (f, from, h, bytes)
  classes = {'single', 'double'};
  wide = f.word * (1 + (mod (h.type, 2) == 0));
  parts = 1 + (h.type > 2);
  if mod (numel (bytes), wide * parts) ~= 0, stop (f, from, '%d bytes are no whole count of values of %d', numel (bytes), wide * parts); end
  v = of_class (f, bytes, classes{wide / 4});
  if ~all (isfinite (v)), stop (f, from, 'value %d is not finite', find (~isfinite (v), 1)); end
  if parts == 2, v = complex (v(1:2:end), v(2:2:end)); end
end
