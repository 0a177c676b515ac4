% [H, NEXT] = MM_HEADER (T)  the head of a Matrix Market file: form, field, symmetry, sizes, parts (numbers a value) and the line after it
function [h, next] = mm_header (t)
  text = t.text(t.first(1):t.last(1));
  head = strsplit (lower (strtrim (text)));
  if numel (head) < 5 || ~strcmp (head{1}, '%%matrixmarket') || ~strcmp (head{2}, 'matrix')
    qn.impl.formats.refuse (t, 1, 'a Matrix Market header expected: %%%%MatrixMarket matrix, form, field, symmetry; got "%s"', ...
                            qn.impl.formats.shown (text));
  end
  h = struct ('form', head{3}, 'field', head{4}, 'symmetry', head{5}, 'sparse', strcmp (head{3}, 'coordinate'));
  if ~any (strcmp (h.form, {'coordinate', 'array'})) || ~any (strcmp (h.field, {'pattern', 'real', 'double', 'integer', 'complex'}))
    qn.impl.formats.refuse (t, 1, '"%s %s" is not a form of this format', qn.impl.formats.shown (h.form), qn.impl.formats.shown (h.field));
  end
  if ~any (strcmp (h.symmetry, {'general', 'symmetric', 'skew-symmetric', 'hermitian'}))
    qn.impl.formats.refuse (t, 1, 'the unknown symmetry "%s"', qn.impl.formats.shown (h.symmetry));
  end
  pattern = strcmp (h.field, 'pattern');
  if (pattern && (~h.sparse || any (strcmp (h.symmetry, {'skew-symmetric', 'hermitian'})))) || ...
     (strcmp (h.symmetry, 'hermitian') && ~strcmp (h.field, 'complex'))
    qn.impl.formats.refuse (t, 1, '"%s %s %s" does not go together', h.form, h.field, h.symmetry);
  end
  h.parts = 1 + strcmp (h.field, 'complex') - pattern;
  next = 2;
  text = qn.impl.formats.line_of (t, next, 'the sizes');
  while isempty (strtrim (text)) || text(1) == '%'
    next = next + 1;
    text = qn.impl.formats.line_of (t, next, 'the sizes');
  end
  words = regexp (strtrim (text), '\s+', 'split');
  [x, good] = qn.impl.formats.parse (char (words));
  if numel (x) ~= 2 + h.sparse || ~all (good & x == fix (x) & x >= 0)
    qn.impl.formats.refuse (t, next, '%d sizes as whole numbers expected, got "%s"', 2 + h.sparse, qn.impl.formats.shown (text));
  end
  limit = qn.impl.formats.dimension_limit (t);
  if any (x(1:2) > limit), qn.impl.formats.refuse (t, next, 'a matrix of %.15g x %.15g, in a file of %d bytes', x(1:2), numel (t.text)); end
  h.sizes = x(1:2).';
  if ~strcmp (h.symmetry, 'general') && x(1) ~= x(2)
    qn.impl.formats.refuse (t, next, 'a matrix of %d x %d, which cannot be %s', h.sizes, h.symmetry);
  end
  h.count = prod (h.sizes);
  if h.sparse
    h.count = x(3);
  elseif ~strcmp (h.symmetry, 'general')
    h.count = h.sizes(1) * (h.sizes(1) + 1 - 2 * strcmp (h.symmetry, 'skew-symmetric')) / 2;
  end
  next = next + 1;
end
