% TEXT = COUNTED (NAMES)  a cell of words as a list of the different ones, each with its count where that is above 1
function text = counted (names)
  [each, unused, k] = unique (names);
  count = accumarray (k(:), 1);
  parts = cell (1, numel (each));
  for j = 1:numel (each)
    parts{j} = each{j};
    if count(j) > 1, parts{j} = sprintf ('%s (%d)', each{j}, count(j)); end
  end
  most = 12;
  if numel (parts) > most, parts = [parts(1:most), {sprintf('and %d more', numel (parts) - most)}]; end
  text = strjoin (parts, ', ');
end
