% QN.MMREAD  reads a matrix from a Matrix Market file
%
% Purpose
%   Finite-element programs export stiffness and mass matrices in this text format.
%
% Calls
%   A = qn.mmread (FILE)
%
% Input
%   FILE   name of the file: "coordinate" or "array", field real, integer, pattern (read as ones) or complex, symmetry general,
%          symmetric, skew-symmetric or hermitian
%
% Output
%   A      matrix, sparse for "coordinate", full for "array", with both triangles of a symmetric one filled in
%
% Errors
%   qn:input  the file cannot be opened, has another header, ends early or goes on after its end, a number is malformed or outside the
%             matrix, or an entry is above the diagonal where the lower triangle stands for both; the message has file and line. The
%             warning qn:file says that entries come twice: they are added.
%
% Example
%   file = [tempname() '.mtx'];
%   qn.mmwrite (file, sparse ([2 -1; -1 2]));
%   a = qn.mmread (file);
%   delete (file);
%
% See also qn.mmwrite, qn.read_hb, qn.read_coordinates, qn.pack
function a = mmread (file)
  if nargin < 1, error ('qn:input', 'qn.mmread: the name of a file expected; see help qn.mmread'); end
  t = qn.impl.formats.open_text ('qn.mmread', file);
  [h, from] = qn.impl.formats.mm_header (t);
  per_line = h.parts + 2 * h.sparse;
  if h.count * per_line > numel (t.text), say_short (t, h.count * per_line); end
  [x, lines] = qn.impl.formats.free_numbers (t, from, h.count * per_line);
  x = reshape (x, per_line, []);
  lines = lines(1:per_line:end);
  v = ones (1, size (x, 2));
  if h.parts > 0, v = x(end - h.parts + 1, :); end
  if h.parts > 1, v = complex (v, x(end, :)); end
  if strcmp (h.field, 'integer')
    k = find (v ~= fix (v) | abs (v) > 2 ^ 53, 1);
    if ~isempty (k), qn.impl.formats.refuse (t, lines(k), '%.17g in a matrix of integers; whole numbers to 2^53 expected', v(k)); end
  end
  if h.sparse
    a = coordinates (t, h, x, v, lines);
  else
    inside = true (h.sizes);
    if strcmp (h.symmetry, 'skew-symmetric')
      inside = tril (inside, -1);
    elseif ~strcmp (h.symmetry, 'general')
      inside = tril (inside);
    end
    a = zeros (h.sizes);
    a(inside) = v;
  end
  if strcmp (h.symmetry, 'hermitian'), real_diagonal (t, h, x, v, lines, a); end
  switch h.symmetry
    case 'symmetric',      a = a + tril (a, -1).';
    case 'skew-symmetric', a = a - tril (a, -1).';
    case 'hermitian',      a = a + tril (a, -1)';
  end
end

function real_diagonal (t, h, x, v, lines, a)
  if ~any (imag (diag (a))), return, end
  if h.sparse
    on = x(1, :) == x(2, :);
  else
    [i, j] = find (tril (true (h.sizes)));
    on = (i == j).';
  end
  k = find (on & imag (v) ~= 0, 1);
  qn.impl.formats.refuse (t, lines(k), 'the value %s on the diagonal of a hermitian matrix', qn.impl.formats.spelt (v(k)));
end

function say_short (t, count)
  qn.impl.formats.refuse (t, numel (t.first), 'the file ends early: %.15g numbers expected, in %d bytes', count, numel (t.text));
end

function a = coordinates (t, h, x, v, lines)
  i = x(1, :);
  j = x(2, :);
  k = find (i ~= fix (i) | j ~= fix (j) | i < 1 | j < 1 | i > h.sizes(1) | j > h.sizes(2), 1);
  if ~isempty (k)
    hint = '';
    if any ([i, j] == 0), hint = '; was it written with numbers from 0?'; end
    qn.impl.formats.refuse (t, lines(k), 'row %.15g, column %.15g, in a matrix of %d x %d%s', i(k), j(k), h.sizes, hint);
  end
  k = find (j > i | (strcmp (h.symmetry, 'skew-symmetric') & j == i), 1);
  if ~strcmp (h.symmetry, 'general') && ~isempty (k)
    qn.impl.formats.refuse (t, lines(k), 'row %d, column %d; of a %s matrix the entries below the diagonal are expected', i(k), j(k), ...
                            h.symmetry);
  end
  twice = numel (i) - numel (unique (i + h.sizes(1) * (j - 1)));
  if twice > 0, warning ('qn:file', 'qn.mmread: %s has %d entries that come twice; they are added', t.file, twice); end
  a = sparse (i, j, v, h.sizes(1), h.sizes(2));
end
