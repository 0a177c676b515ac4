% E = RANDOM_LAW_ELEMENT (WORD, N)         random element of the force law WORD on N rows of u: one entry in each row of c and of b
% E = RANDOM_LAW_ELEMENT (WORD, N, false)  with any pattern in them
%
% With one entry in a row no sum has two terms, so that its bits do not depend on an order. With any pattern the forces are scaled down, so
% that few runs blow up and rounding with them. The pages hold random states. Sometimes there is no "snl", sometimes forces and states
% are stored.
function e = random_law_element (word, n, single_entries)
  if nargin < 3, single_entries = true; end
  law = random_law (word, n);
  e = struct ('type', 1003, 'opt', [law_code(word); law.parameters]);
  e.unl = randn (law.page, 1, law.pages);
  if law.rates || rand < 0.7, e.vnl = randn (law.page, 1, law.pages); end
  forces = law.page;
  if rand < 0.8 || law.forces > 0
    forces = max (law.page, 3);
    e.snl = randn (forces, 1);
  end
  c = one_entry_each (law.page, n);
  b = one_entry_each (min (forces, n), n);
  if ~single_entries
    c = c + randn (size (c)) .* (rand (size (c)) < 0.4);
    b = 0.2 * randn (size (b)) .* (rand (size (b)) < 0.8);
  end
  e.c = matrix_lines (c, true);
  if rand < 0.3, e.c = c; end
  e.b = matrix_lines (b, true);
  e.iopt = int32 ([randi(4) - 2; law.places(:)]);
  for k = 1:2:numel (law.fields), e.(law.fields{k}) = law.fields{k + 1}; end
  e = fresh (e);
end

% Row k has one entry, in a column of its own where there are enough columns.
function m = one_entry_each (rows, columns)
  m = zeros (rows, columns);
  order = randperm (columns);
  for k = 1:rows, m(k, order(mod (k - 1, columns) + 1)) = randi (4) / 2; end
end
