% A = ENTRIES (SAY, I, J, V, DIMS, KIND, REPEATED)  sparse matrix of DIMS from entries (I, J) = V, columns of one length
%
%   SAY        function (K, FORMAT, ...) that raises the error for entry K
%   KIND       'general', 'symmetric', 'hermitian' or 'skew': then one triangle stands for both, each entry for itself and its mirror
%              image. Entries on both sides are taken once where they agree and refused where they do not.
%   REPEATED   'refuse' entries that come twice, or 'add' them
function a = entries (say, i, j, v, dims, kind, repeated)
  [place, order] = sort (i + dims(1) * (j - 1));
  twice = order([false; diff(place) == 0]);
  if ~isempty (twice) && strcmp (repeated, 'refuse')
    k = min (twice);
    say (k, 'the entry (%d, %d) comes twice', i(k), j(k));
  end
  a = sparse (i, j, v, dims(1), dims(2));
  if strcmp (kind, 'general'), return, end
  switch kind
    case 'symmetric', mirror = @(x) x.';
    case 'hermitian', mirror = @(x) x';
    case 'skew',      mirror = @(x) -x.';
  end
  % Where each side has entries; zeros that are written count.
  pattern = sparse (i, j, 1, dims(1), dims(2)) > 0;
  both = pattern & pattern.';
  [r, c] = find (both & a ~= mirror (a));
  if ~isempty (r)
    k = find (i == r(1) & j == c(1), 1);
    other = mirror (a);
    if r(1) == c(1)
      say (k, 'the entry (%d, %d) on the diagonal is %s, which the symmetry "%s" does not allow', r(1), c(1), ...
           qn.impl.formats.spelt (v(k)), kind);
    end
    say (k, 'the entry (%d, %d) is %s on one side and %s on the other, which the symmetry "%s" does not allow', r(1), c(1), ...
         qn.impl.formats.spelt (full (a(r(1), c(1)))), qn.impl.formats.spelt (full (other(r(1), c(1)))), kind);
  end
  b = mirror (a);
  [r, c] = find (both);
  if ~isempty (r), b = b - sparse (r, c, full (b(r + dims(1) * (c - 1))), dims(1), dims(2)); end
  a = a + b;
end
