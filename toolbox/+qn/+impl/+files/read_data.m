% S = READ_DATA (FILE)  numbers, texts, structures and cells in a .mat file that was written uncompressed ('-v6'), and nothing else
%
% The host's own load would evaluate functions and build objects that a file holds, before anyone could look at them. This reads the
% format (MAT-file level 5) as data and refuses the rest in words. Source: MAT-File Format, The MathWorks.
function s = read_data (file)
  [id, why] = fopen (file, 'r', 'ieee-le');
  if id < 0, fail ('it cannot be opened: %s', why); end
  closed = onCleanup (@() fclose (id));
  fseek (id, 0, 'eof');
  last = ftell (id);
  fseek (id, 0, 'bof');
  head = fread (id, [1 128], 'uint8');
  if numel (head) < 128 || ~isequal (head(125:128), [0 1 double('IM')])
    fail ('it is no .mat file of this form, or its head is damaged');
  end
  s = struct ();
  while ftell (id) < last
    [x, name] = matrix (id, last, 0);
    if ~isvarname (name) || isfield (s, name), fail ('a name in it is damaged'); end
    s.(name) = x;
  end
end

function fail (varargin)
  error ('qn:input', varargin{:});
end

% Type of an element, its bytes, and where the next one begins.
function [type, n, next] = tag (id, last)
  here = ftell (id);
  w = fread (id, [1 2], 'uint32');
  if here + 8 > last || numel (w) < 2, fail ('it ends early'); end
  if w(1) >= 65536
    type = mod (w(1), 65536);
    n = floor (w(1) / 65536);
    next = here + 8;
    if n > 4, fail ('it is damaged'); end
    fseek (id, here + 4, 'bof');
  else
    type = w(1);
    n = w(2);
    next = here + 8 + 8 * ceil (n / 8);
  end
  if next > last, fail ('it ends early: %d of %d bytes are there', last, next); end
end

function x = numbers (id, last, class_name)
  persistent widths forms
  if isempty (widths)
    widths = [1 1 2 2 4 4 4 0 8 0 0 8 8 0 0 1 2];
    forms = {'int8', 'uint8', 'int16', 'uint16', 'int32', 'uint32', 'single', '', 'double', '', '', 'int64', 'uint64', '', '', 'uint8', ...
             'uint16'};
  end
  [type, n, next] = tag (id, last);
  if type < 1 || type > numel (widths) || widths(type) == 0 || mod (n, widths(type)) ~= 0, fail ('it is damaged'); end
  x = qn.impl.files.read_numbers (id, n / widths(type), [forms{type} '=>' class_name], class_name);
  fseek (id, next, 'bof');
end

% What an array is, its bits, extents and name; of two dimensions and without a name, as most are, it is read at once.
function [kind, bits, dims, name] = head_of (id, last)
  here = ftell (id);
  w = zeros (1, 0);
  if here + 40 <= last, w = fread (id, [1 10], 'uint32'); end
  if numel (w) == 10 && all (w([1 2 5 6 9 10]) == [6 8 5 8 1 0]) && all (w(7:8) < 2 ^ 31)
    flags = w(3);
    dims = w(7:8);
    name = '';
  else
    fseek (id, here, 'bof');
    flags = numbers (id, last, 'double');
    dims = numbers (id, last, 'double');
    name = word (numbers (id, last, 'double'));
  end
  kind = mod (flags(1), 256);
  bits = floor (flags(1) / 256);
end

function [x, name] = matrix (id, last, depth)
  persistent kinds
  if isempty (kinds)
    kinds = {'cell', 'struct', 'object', 'char', 'sparse', 'double', 'single', 'int8', 'uint8', 'int16', 'uint16', 'int32', 'uint32', ...
             'int64', 'uint64', 'function', 'object'};
  end
  [type, n, next] = tag (id, last);
  x = [];
  name = '';
  if type == 15, fail ('it is compressed, as files of version 0.1 are, and cannot be read as mere data'); end
  if type ~= 14 || depth > 20, fail ('it is damaged'); end
  if n == 0, return, end
  [kind, bits, dims, name] = head_of (id, last);
  if kind < 1 || kind > numel (kinds) || numel (dims) < 2 || any (dims < 0), fail ('it is damaged'); end
  kind = kinds{kind};
  count = prod (dims);
  if any (strcmp (kind, {'cell', 'struct'})) && count > last, fail ('it is damaged'); end
  switch kind
    case 'cell'
      x = cell (dims);
      for k = 1:count, x{k} = matrix (id, last, depth + 1); end
    case 'struct'
      x = structure (id, last, dims, depth);
    case 'sparse'
      x = sparse_matrix (id, last, dims, bits);
    case {'object', 'function'}
      fail ('it holds a function or an object, which could run code');
    case 'char'
      x = text (numbers (id, last, 'double'), dims);
    otherwise
      x = numbers (id, last, kind);
      if numel (x) ~= count || mod (floor (bits / 8), 2) == 1, fail ('an array in it has another size than it says, or is complex'); end
      x = reshape (x, dims);
      if mod (floor (bits / 2), 2) == 1, x = logical (x); end
  end
  fseek (id, next, 'bof');
end

function name = word (codes)
  if any (codes(:) < 0 | codes(:) > 127), fail ('a name in it is damaged'); end
  name = char (codes);
end

% Characters are stored in 16 bits; hosts differ in how they hold those beyond ASCII.
function x = text (codes, dims)
  if any (codes > 127) && dims(1) == 1
    x = native2unicode (typecast (uint16 (codes), 'uint8'), 'utf-16le');
  else
    x = reshape (char (codes), dims);
  end
end

function x = structure (id, last, dims, depth)
  width = numbers (id, last, 'double');
  codes = numbers (id, last, 'double');
  if numel (width) ~= 1 || width < 1 || mod (numel (codes), width) ~= 0, fail ('a name in it is damaged'); end
  names = word (reshape (codes, width, []).');
  fields = cell (1, size (names, 1));
  for k = 1:numel (fields)
    fields{k} = strtok (names(k, :), char (0));
    if ~isvarname (fields{k}), fail ('a name in it is damaged'); end
  end
  values = cell (numel (fields), prod (dims));
  for k = 1:numel (values), values{k} = matrix (id, last, depth + 1); end
  x = reshape (cell2struct (values, fields, 1), dims);
end

function x = sparse_matrix (id, last, dims, bits)
  ir = numbers (id, last, 'double');
  jc = numbers (id, last, 'double');
  v = numbers (id, last, 'double');
  n = numel (v);
  if numel (jc) ~= dims(2) + 1 || any (diff (jc) < 0) || jc(1) ~= 0 || jc(end) ~= n || numel (ir) < n || mod (floor (bits / 8), 2) == 1
    fail ('a sparse matrix in it is damaged');
  end
  if any (ir(1:n) < 0) || any (ir(1:n) >= dims(1)), fail ('a sparse matrix in it is damaged'); end
  column = cumsum (accumarray (jc(:) + 1, 1, [n + 1, 1])).';
  column = column(1:n);
  x = sparse (ir(1:n) + 1, column, v, dims(1), dims(2));
end
