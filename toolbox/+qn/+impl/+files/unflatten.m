% X = UNFLATTEN (FLAT)  the value that flatten made two rows of; an error where they do not fit together. Nothing in them is executed
function x = unflatten (flat)
  try
    [x, at, from] = part (flat.shape, 1, flat.bytes, 1);
  catch err
    error ('qn:input', 'what it holds is damaged (%s)', err.message);
  end
  if at ~= numel (flat.shape) + 1 || from ~= numel (flat.bytes) + 1, error ('qn:input', 'what it holds is damaged (a part is missing)'); end
end

% The part at shape(AT), bytes(FROM), and where the next one begins.
function [x, at, from] = part (shape, at, bytes, from)
  code = shape(at);
  [dims, at] = dimensions (shape, at + 1);
  count = prod (dims);
  switch code
    case 50
      [entries, at, from] = part (shape, at, bytes, from);
      x = sparse (entries{:}, dims(1), dims(2));
    case 60
      if count > numel (shape), error ('qn:input', 'a cell has more elements than there are'); end
      x = cell (dims);
      for k = 1:count, [x{k}, at, from] = part (shape, at, bytes, from); end
    case 61
      [inner, at] = dimensions (shape, at);
      [row, at, from] = part (shape, at, bytes, from);
      x = reshape (apart (row, inner, count), dims);
    case 62
      lengths = shape(at + (1:shape(at)));
      [row, at, from] = part (shape, at + 1 + numel (lengths), bytes, from);
      x = reshape (mat2cell (row, 1, lengths), dims);
    case 70
      [names, at, from] = part (shape, at, bytes, from);
      names = regexp (names, '[^\n]+', 'match');
      if ~all (cellfun (@isvarname, names)), error ('qn:input', 'a name'); end
      values = cell (numel (names), count);
      for k = 1:numel (names), [values(k, :), at, from] = part (shape, at, bytes, from); end
      x = reshape (cell2struct (values, names(:), 1), dims);
    otherwise
      [x, from] = array (bytes, from, mod (code, 100), count);
      if code > 100
        [y, from] = array (bytes, from, code - 100, count);
        x = complex (x, y);
      end
      x = reshape (x, dims);
  end
end

function [dims, at] = dimensions (shape, at)
  last = at + shape(at);
  dims = shape(at + 1:last);
  if numel (dims) < 2 || any (dims < 0 | dims ~= fix (dims)), error ('qn:input', 'a size'); end
  at = last + 1;
end

function [x, from] = array (bytes, from, code, count)
  [names, widths] = qn.impl.files.flat_classes ();
  last = from + count * widths(code) - 1;
  x = bytes(from:last);
  from = last + 1;
  switch names{code}
    case 'char'
      x = char (bits (x, 'uint16'));
    case 'logical'
      x = logical (x);
    otherwise
      x = bits (x, names{code});
  end
end

function x = bits (x, kind)
  if isempty (x)
    x = zeros (1, 0, kind);
  else
    x = typecast (x, kind);
  end
end

% COUNT arrays of the size INNER from the row of all of them.
function x = apart (row, inner, count)
  n = prod (inner);
  if n == 1
    x = num2cell (row);
  else
    x = num2cell (reshape (row, n, count), 1);
    if ~isequal (inner, [n 1]), x = cellfun (@(v) reshape (v, inner), x, 'UniformOutput', false); end
  end
end
