% [FLAT, GOOD] = FLATTEN (X)  any value as two rows, FLAT.shape (what is where) and FLAT.bytes (every bit of it)
%
% Numbers, texts, truth values, structures and cells; GOOD is false where X holds something else (a function, an object). A file of the two
% rows is read at once, however many parts X has, and read as data: see unflatten.
%
% A part is its code in "shape", the number of its dimensions and these; then, of cells and structures, their parts. Codes: 1 to 12 an array of
% the class in flat_classes, + 100 with imaginary part; 50 sparse; 60 cell, 61 of real arrays of one class and size, 62 of texts; 70 structure.
function [flat, good] = flatten (x)
  [shape, bytes, good] = part (x, 0);
  flat = struct ('shape', shape, 'bytes', bytes);
end

function [shape, bytes, good] = part (x, depth)
  bytes = zeros (1, 0, 'uint8');
  dims = size (x);
  shape = [0, numel(dims), dims];
  if iscell (x)
    [shape, bytes, good] = cells (x, shape, depth);
    return
  end
  if strcmp (class (x), 'struct')
    [shape, bytes, good] = structure (x, shape, depth);
    return
  end
  code = find (strcmp (class (x), qn.impl.files.flat_classes ()));
  good = ~isempty (code) && depth < 50;
  if ~good, return, end
  if issparse (x)
    [i, j, v] = find (x);
    [inner, bytes] = part ({i(:), j(:), v(:)}, depth + 1);
    shape = [50, shape(2:end), inner];
  elseif ischar (x)
    shape(1) = code;
    bytes = bits (uint16 (x));
  elseif islogical (x)
    shape(1) = code;
    bytes = bits (uint8 (x));
  elseif isreal (x)
    shape(1) = code;
    bytes = bits (x);
  else
    shape(1) = code + 100;
    bytes = [bits(real (x)), bits(imag (x))];
  end
end

function b = bits (x)
  b = zeros (1, 0, 'uint8');
  if ~isempty (x), b = typecast (reshape (x, 1, []), 'uint8'); end
end

function [shape, bytes, good] = cells (x, shape, depth)
  bytes = zeros (1, 0, 'uint8');
  good = depth < 50;
  if ~good, return, end
  if one_kind (x)
    inner = size (x{1});
    along = numel (inner) + (numel (inner) > 2);           % side by side: the same order in memory, of sparse ones too
    all_of_them = cat (along, x{:});
    if ~issparse (all_of_them)
      [row, bytes, good] = part (reshape (all_of_them, 1, []), depth + 1);
      shape = [61, shape(2:end), numel(inner), inner, row];
      return
    end
  elseif all_texts (x)
    [row, bytes] = part ([x{:}], depth + 1);
    shape = [62, shape(2:end), numel(x), cellfun('length', x(:)).', row];
    return
  end
  parts = cell (2, numel (x));
  for k = 1:numel (x)
    [parts{1, k}, parts{2, k}, good] = part (x{k}, depth + 1);
    if ~good, return, end
  end
  shape = [60, shape(2:end), parts{1, :}];
  bytes = [bytes, parts{2, :}];
end

% Real arrays of one class and size, not empty.
function is = one_kind (x)
  is = ~isempty (x) && any (strcmp (class (x{1}), qn.impl.files.flat_classes ())) && ~isempty (x{1});
  is = is && all (cellfun ('isclass', x(:), class (x{1}))) && all (cellfun ('isreal', x(:)));
  if ~is, return, end
  for d = 1:ndims (x{1}), is = is && all (cellfun ('size', x(:), d) == size (x{1}, d)); end
  is = is && all (cellfun ('ndims', x(:)) == ndims (x{1}));
end

function is = all_texts (x)
  is = ~isempty (x) && all (cellfun ('isclass', x(:), 'char')) && all (cellfun ('size', x(:), 1) == 1) && ...
       all (cellfun ('ndims', x(:)) == 2);
end

% The names, then the values of each field in all elements.
function [shape, bytes, good] = structure (x, shape, depth)
  names = fieldnames (x);
  values = reshape (struct2cell (x), numel (names), []);
  [inner, bytes, good] = part (sprintf ('%s\n', names{:}), depth + 1);
  shape = [70, shape(2:end), inner];
  parts = cell (2, numel (names));
  for k = 1:numel (names)
    [parts{1, k}, parts{2, k}, good] = cells (values(k, :), [0, 2, 1, size(values, 2)], depth + 1);
    if ~good, return, end
  end
  shape = [shape, parts{1, :}];
  bytes = [bytes, parts{2, :}];
end
