% H = HB_HEADER (T)  the head of a Harwell-Boeing file
%
% H: title, key, type (three capital letters), rows, columns, count (of indices), values (of element matrices), pointers, indices,
%    numbers, loads (formats), blocks (lines of the four blocks), right (its type), vectors (right-hand sides), next (line after it)
function h = hb_header (t)
  text = qn.impl.formats.line_of (t, 1, 'the title');
  padded = [text, repmat(' ', 1, 80)];
  h = struct ('title', strtrim (padded(1:72)), 'key', strtrim (padded(73:80)));
  lines = qn.impl.formats.integers (t, 2, 0, [14 14 14 14 14], {'TOTCRD', 'PTRCRD', 'INDCRD', 'VALCRD', 'RHSCRD'});
  h.blocks = lines(2:5).';
  text = [qn.impl.formats.line_of(t, 3, 'the type of the matrix'), '   '];
  h.type = upper (text(1:3));
  if isempty (regexp (h.type, '^[RCP][SUHZR][AE]$', 'once'))
    qn.impl.formats.refuse (t, 3, 'the type is "%s"; R, C or P, then S, U, H, Z or R, then A or E expected', ...
                            qn.impl.formats.shown (text(1:3)));
  end
  names = {'NROW', 'NCOL', 'NNZERO', 'NELTVL'};
  x = qn.impl.formats.integers (t, 3, 14, [14 14 14 14], names);
  qn.impl.formats.fits (t, 3, x(2:4), names(2:4));
  if x(1) > qn.impl.formats.dimension_limit (t), qn.impl.formats.fits (t, 3, x(1), names(1)); end
  if any (x(1:2) < 1), qn.impl.formats.refuse (t, 3, 'a matrix of %d x %d', x(1), x(2)); end
  [h.rows, h.columns, h.count, h.values] = deal (x(1), x(2), x(3), x(4));
  text = [qn.impl.formats.line_of(t, 4, 'the formats'), repmat(' ', 1, 72)];
  h.pointers = format_of (t, text(1:16), 'PTRFMT', true, h.blocks(1));
  h.indices = format_of (t, text(17:32), 'INDFMT', true, h.blocks(2));
  h.numbers = format_of (t, text(33:52), 'VALFMT', false, h.blocks(3));
  h.loads = format_of (t, text(53:72), 'RHSFMT', false, h.blocks(4));
  h.right = '   ';
  h.vectors = 0;
  h.next = 5;
  if h.blocks(4) > 0
    text = [qn.impl.formats.line_of(t, 5, 'the type of the right-hand sides'), '   '];
    h.right = upper (text(1:3));
    x = qn.impl.formats.integers (t, 5, 14, [14 14], {'NRHS', 'NRHSIX'});
    qn.impl.formats.fits (t, 5, x(1), {'NRHS'});
    h.vectors = x(1);
    h.next = 6;
  end
  if lines(1) ~= sum (lines(2:5))
    warning ('qn:file', '%s: %s, line 2: TOTCRD is %d, the other four add up to %d; they are used', t.who, t.file, lines(1), ...
             sum (lines(2:5)));
  end
end

function f = format_of (t, text, name, whole, used)
  f = qn.impl.formats.fortran (text);
  if used == 0, return, end
  if isempty (f) || f.whole ~= whole
    kinds = {'real numbers, such as (3D25.15)', 'whole numbers, such as (8I10)'};
    qn.impl.formats.refuse (t, 4, '%s is "%s"; a format of %s expected', name, qn.impl.formats.shown (strtrim (text)), kinds{1 + whole});
  end
end
