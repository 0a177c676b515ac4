% [HEADS, TERMS] = DMIG_TERMS (T, LIST)  heads and terms of the DMIG entries of LIST (from bulk_entries)
%
% HEADS: struct array: name, form, type, polar, columns, line. TERMS: struct of columns: name (cell), place (rows of column point and
% component, row point and component), x (two numbers), line
function [heads, terms] = dmig_terms (t, list)
  heads = struct ('name', {}, 'form', {}, 'type', {}, 'polar', {}, 'columns', {}, 'line', {});
  names = cell (size (list, 1), 1);
  fields = cell (size (list, 1), 1);
  lines = fields;
  for k = 1:size (list, 1)
    f = list{k, 2};
    at = list{k, 1};
    names{k} = f{1};
    if isempty (regexp (f{1}, '^[A-Z]\w{0,7}$', 'once'))
      qn.impl.formats.refuse (t, at(1), 'the name "%s"; a letter and up to seven letters and digits expected', ...
                              qn.impl.formats.shown (f{1}));
    end
    if strcmp (f{2}, '0')
      heads(end + 1) = head (t, f, at);
      fields{k} = cell (0, 6);
      lines{k} = zeros (0, 1);
      continue
    end
    if ~isempty (f{4})
      qn.impl.formats.refuse (t, at(3), '"%s" in the fourth field of a column of "%s", which is blank: fields that have moved?', ...
                              qn.impl.formats.shown (f{4}), f{1});
    end
    rest = f(5:end);
    rest(end + 1:4 * ceil (numel (rest) / 4)) = {''};
    rest = reshape (rest, 4, []).';
    line = at(min (1 + 4 * (1:size (rest, 1)), numel (at))).';
    used = ~all (cellfun (@isempty, rest), 2);
    if ~any (used), qn.impl.formats.refuse (t, at(1), 'a column of "%s" without terms', f{1}); end
    fields{k} = [repmat(f(2:3), sum (used), 1), rest(used, :)];
    lines{k} = line(used);
  end
  count = cellfun (@numel, lines);
  names = cellfun (@(name, n) repmat ({name}, n, 1), names, num2cell (count), 'uniformoutput', false);
  fields = cat (1, cell (0, 6), fields{:});
  line = cat (1, zeros (0, 1), lines{:});
  terms = struct ('name', {cat(1, cell (0, 1), names{:})}, 'place', zeros (0, 4), 'x', zeros (0, 2), 'line', line);
  if isempty (line), return, end
  whole = fields(:, 1:4);
  [place, good, point, exponent] = qn.impl.formats.parse (char (whole(:)));
  k = find (~good | point | exponent | place < 0, 1);
  if ~isempty (k), wrong (t, line, k, 'a point or a component', whole{k}, 'a whole number'); end
  terms.place = reshape (place, [], 4);
  k = find (terms.place(:, 1) < 1 | terms.place(:, 3) < 1, 1);
  if ~isempty (k), qn.impl.formats.refuse (t, line(k), 'a term without a point: numbers from 1 expected'); end
  k = find (any (terms.place(:, [2 4]) > 6, 2), 1);
  if ~isempty (k)
    qn.impl.formats.refuse (t, line(k), 'the components %g and %g of a term; 0 to 6 expected', terms.place(k, [2 4]));
  end
  values = fields(:, 5:6);
  [x, good, point, exponent, blank] = qn.impl.formats.parse (char (values(:)));
  given = [true(size (line)); false(size (line))];
  k = find (~good | (~point & ~blank) | (blank & given), 1);
  if ~isempty (k), wrong (t, line, k, 'a value', values{k}, 'a real number with a decimal point'); end
  terms.x = reshape (x, [], 2);
end

function wrong (t, line, k, what, text, kind)
  qn.impl.formats.refuse (t, line(1 + mod (k - 1, numel (line))), '%s is "%s"; %s expected', what, qn.impl.formats.shown (text), kind);
end

function h = head (t, f, at)
  f(end + 1:8) = {''};
  names = {'IFO', 'TIN', 'TOUT', 'POLAR', '', 'NCOL'};
  [x, good, point, exponent] = qn.impl.formats.parse (char ([f(3:8), {' '}]));
  k = find (~good | point | exponent | x < 0, 1);
  if ~isempty (k)
    qn.impl.formats.refuse (t, at(min (2 + k, end)), '%s of "%s" is "%s"; a whole number expected', names{k}, f{1}, ...
                            qn.impl.formats.shown (f{2 + k}));
  end
  if ~any (x(1) == [1 2 6 9])
    qn.impl.formats.refuse (t, at(1), 'IFO of "%s" is %g; 1 (square), 6 (symmetric), 2 or 9 (rectangular) expected', f{1}, x(1));
  end
  if ~any (x(2) == 1:4), qn.impl.formats.refuse (t, at(1), 'TIN of "%s" is %g; 1 to 4 expected', f{1}, x(2)); end
  h = struct ('name', f{1}, 'form', x(1), 'type', x(2), 'polar', x(4) > 0, 'columns', x(6), 'line', at(1));
end
