% [F, T, NEXT] = UNV_FUNCTION (T, FROM, BINARY)  a function at a nodal degree of freedom, dataset 58, whose first line is FROM
%
% BINARY is the line of the dataset's number where its values are bytes, else ''. T comes back with the places of lines as they go on
% after the bytes; NEXT is the line after the values.
function [f, t, next] = unv_function (t, from, binary)
  ids = cell (1, 5);
  for k = 1:5, ids{k} = strtrim (qn.impl.formats.line_of (t, from + k - 1, 'the description of a function')); end
  text = [qn.impl.formats.line_of(t, from + 5, 'what the function belongs to'), repmat(' ', 1, 80)];
  [kind, number, at, reference] = place (t, from + 5, text);
  f = struct ('description', {ids}, 'type', kind, 'number', number, 'node', at.node, 'direction', at.direction, ...
              'name', at.name, 'reference', reference, 'even', false, 'step', 0, 'z', 0, 'x', [], 'y', []);
  text = [qn.impl.formats.line_of(t, from + 6, 'count and spacing of the values'), repmat(' ', 1, 80)];
  [x, good, unused, unused2, blank] = qn.impl.formats.parse (char (text(1:10), text(11:20), text(21:30), text(31:43), text(44:56), ...
                                                             text(57:69)));
  names = {'type of the values', 'count of values', 'spacing', 'first abscissa', 'step', 'third axis'};
  bad = find (~good | (blank & (1:6).' < 3) | ([x(1:3) ~= fix(x(1:3)) | x(1:3) < 0; false(3, 1)]), 1);
  if ~isempty (bad)
    qn.impl.formats.refuse (t, from + 6, 'the %s makes no sense: "%s"', names{bad}, qn.impl.formats.shown (text(1:69)));
  end
  if ~any (x(1) == [2 4 5 6])
    qn.impl.formats.refuse (t, from + 6, 'type of the values %g; 2, 4 (real), 5 or 6 (complex) expected', x(1));
  end
  if ~any (x(3) == [0 1]), qn.impl.formats.refuse (t, from + 6, 'spacing %g; 0 (uneven) or 1 (even) expected', x(3)); end
  qn.impl.formats.fits (t, from + 6, x(2), {'the count of values'});
  [f.even, f.step, f.z] = deal (x(3) == 1, x(5), x(6));
  axes = {'x', 'y', 'y_below', 'z'};
  for k = 1:4, f = labelled (t, from + 6 + k, f, axes{k}); end
  per = struct ('double', any (x(1) == [4 6]), 'complex', x(1) > 4);
  if isempty (binary)
    [f, next] = text_values (t, from + 11, f, x, per);
  else
    [f, t, next] = qn.impl.formats.unv_bytes (t, from + 11, binary, f, x, per);
  end
  if f.even && x(2) > 1 && ~(x(5) ~= 0), qn.impl.formats.refuse (t, from + 6, 'values in even steps, and a step of 0'); end
end

function [kind, number, at, reference] = place (t, line, text)
  apart (t, line, text, [31 56]);
  [x, good] = qn.impl.formats.parse (char (text(1:5), text(6:15), text(42:51), text(52:55), text(67:76), text(77:80)));
  names = {'type of function', 'number', 'node', 'direction', 'reference node', 'reference direction'};
  k = find (~good | x ~= fix (x), 1);
  if ~isempty (k), qn.impl.formats.refuse (t, line, 'the %s makes no sense: "%s"', names{k}, qn.impl.formats.shown (text(1:80))); end
  kind = x(1);
  number = x(2);
  at = struct ('name', strtrim (text(32:41)), 'node', x(3), 'direction', x(4));
  reference = struct ('name', strtrim (text(57:66)), 'node', x(5), 'direction', x(6));
end

function f = labelled (t, line, f, axis)
  text = [qn.impl.formats.line_of(t, line, 'what is on an axis'), repmat(' ', 1, 67)];
  apart (t, line, text, [26 47]);
  [x, good] = qn.impl.formats.parse (char (text(1:10), text(11:15), text(16:20), text(21:25)));
  if ~all (good & x == fix (x))
    qn.impl.formats.refuse (t, line, 'the kind of an axis makes no sense: "%s"', qn.impl.formats.shown (text));
  end
  f.([axis '_axis']) = struct ('kind', x(1), 'label', strtrim (text(27:46)), 'unit', strtrim (text(48:67)));
end

% Columns that are blank in every file: where one is not, a line was shifted.
function apart (t, line, text, columns)
  k = find (text(columns) ~= ' ', 1);
  if ~isempty (k)
    qn.impl.formats.refuse (t, line, '"%s" in column %d, which is blank between two fields: a line that was shifted?', ...
                            qn.impl.formats.shown (text(columns(k))), columns(k));
  end
end

% Values in columns: the abscissa of uneven ones, 13 wide, before each.
function [f, next] = text_values (t, from, f, x, per)
  parts = 1 + per.complex;
  each = parts + ~f.even;
  forms = {'6E13.5', '4E20.12'};
  layout = qn.impl.formats.fortran (forms{1 + per.double});
  layout.fill = true;
  what = sprintf ('values of the function "%s"', qn.impl.formats.shown (f.description{1}));
  if f.even || ~per.double
    [y, next] = qn.impl.formats.items (t, from, each * x(2), layout, what);
    y = reshape (y, each, []);
  else
    % One or two values of 20 columns after each abscissa of 13; two real ones a line.
    pairs = 2 - per.complex;
    lines = ceil (x(2) / pairs);
    c = qn.impl.formats.block (t, from, lines, pairs * (13 + 20 * parts), what);
    c = reshape (c.', 13 + 20 * parts, []).';
    y = zeros (each, size (c, 1));
    for j = 1:each
      columns = 13 * (j > 1) + 20 * max (j - 2, 0) + (1:13 + 7 * (j > 1));
      [v, good, unused, unused2, blank] = qn.impl.formats.parse (c(:, columns));
      within = (1:numel (v)).' <= x(2);
      good = good & ((within & ~blank) | (~within & v == 0));
      k = find (~good, 1);
      if ~isempty (k)
        qn.impl.formats.refuse (t, from + floor ((k - 1) / pairs), 'number %d of %s is "%s", which is no finite number', k, what, ...
                                qn.impl.formats.shown (c(k, columns)));
      end
      y(j, :) = v.';
    end
    y = y(:, 1:x(2));
    next = from + lines;
  end
  f = qn.impl.formats.unv_axes (f, x, y, per);
end
