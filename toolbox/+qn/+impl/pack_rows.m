% S = PACK_ROWS (A)  observation or command rows, p x n, in the module's form (qn.pack, 'transposed')
%
% The row of a place in modal coordinates has a value for every mode, and the module sums such rows several times as fast as scattered
% ones. A mode that does not move the place would leave a hole: zeros between the first and the last place that long rows reach are stored
% in every row that fills at least half of them. Short rows (fewer than 8 values) are stored without zeros.
function s = pack_rows (a)
  s = qn.pack (a, 'transposed');
  stored = a ~= 0;
  long = sum (stored, 2) >= 8;
  reached = find (any (stored(long, :), 1));
  if isempty (reached), return, end
  span = reached(1):reached(end);
  stored(long & 2 * sum (stored(:, span), 2) >= numel (span), span) = true;
  lines = stored.';
  values = a.';
  [column, unused] = find (lines);
  values = values(lines);
  s.ir = int32 (column(:) - 1);
  s.jc = int32 (cumsum ([0; sum(stored, 2)]));
  s.pr = values(:);
end
