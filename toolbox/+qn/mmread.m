% QN.MMREAD  reads a matrix from a Matrix Market file
%
% Purpose
%   Finite-element programs export stiffness and mass matrices in this text format.
%
% Calls
%   A = qn.mmread (FILE)
%
% Input
%   FILE   name of the file: "coordinate" or "array", field real, integer, pattern or complex, symmetry general, symmetric,
%          skew-symmetric or hermitian
%
% Output
%   A      matrix, sparse for "coordinate", full for "array", with both triangles of a symmetric one filled in
%
% Errors
%   qn:input  the file cannot be opened, has another header, or ends early
%
% Example
%   file = [tempname() '.mtx'];
%   qn.mmwrite (file, sparse ([2 -1; -1 2]));
%   a = qn.mmread (file);
%   delete (file);
%
% See also qn.mmwrite, qn.pack
function a = mmread (file)
  file = qn.impl.chars (file);
  [id, why] = fopen (file, 'r');
  if id < 0, error ('qn:input', 'qn.mmread: cannot open %s: %s', file, why); end
  close_file = onCleanup (@() fclose (id));
  head = strsplit (lower (strtrim (fgetl (id))));
  if numel (head) < 5 || ~strcmp (head{1}, '%%matrixmarket') || ~strcmp (head{2}, 'matrix')
    error ('qn:input', 'qn.mmread: %s does not begin with a Matrix Market header', file);
  end
  form = head{3};
  field = head{4};
  symmetry = head{5};
  line = fgetl (id);
  while ischar (line) && (isempty (strtrim (line)) || line(1) == '%'), line = fgetl (id); end
  if ~ischar (line), error ('qn:input', 'qn.mmread: %s ends before its sizes', file); end
  sizes = sscanf (line, '%f').';
  values = find (strcmp (field, {'pattern', 'real', 'complex'})) - 1;
  if strcmp (field, 'integer'), values = 1; end
  if isempty (values) || ~any (strcmp (form, {'coordinate', 'array'}))
    error ('qn:input', 'qn.mmread: %s holds "%s %s", which is not a form of this format', file, form, field);
  end
  if strcmp (form, 'coordinate')
    a = coordinates (read (id, file, 2 + values, sizes(3)), sizes, values);
  else
    a = columns_of (id, file, sizes, values, symmetry);
  end
  switch symmetry
    case 'general'
    case 'symmetric',      a = a + tril (a, -1).';
    case 'skew-symmetric', a = a - tril (a, -1).';
    case 'hermitian',      a = a + tril (a, -1)';
    otherwise
      error ('qn:input', 'qn.mmread: %s has the unknown symmetry "%s"', file, symmetry);
  end
end

function x = read (id, file, per_line, lines)
  [x, got] = fscanf (id, '%f', [per_line, lines]);
  if got < per_line * lines
    error ('qn:input', 'qn.mmread: %s ends early: %d numbers expected, got %d', file, per_line * lines, got);
  end
end

function a = coordinates (x, sizes, values)
  v = ones (1, size (x, 2));
  if values > 0, v = x(3, :); end
  if values > 1, v = v + 1i * x(4, :); end
  a = sparse (x(1, :), x(2, :), v, sizes(1), sizes(2));
end

% Full matrices are stored column by column; of symmetric ones the lower triangle, of skew-symmetric ones without the diagonal.
function a = columns_of (id, file, sizes, values, symmetry)
  inside = true (sizes(1:2));
  if strcmp (symmetry, 'skew-symmetric')
    inside = tril (inside, -1);
  elseif ~strcmp (symmetry, 'general')
    inside = tril (inside);
  end
  x = read (id, file, max (values, 1), sum (inside(:)));
  v = x(1, :);
  if values > 1, v = v + 1i * x(2, :); end
  a = zeros (sizes(1:2));
  a(inside) = v;
end
