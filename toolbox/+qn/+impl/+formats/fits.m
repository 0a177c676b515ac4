% FITS (T, LINE, X, NAMES)  refuses counts that cannot be: each of those in X needs at least a character of the file T
function fits (t, line, x, names)
  k = find (x(:) > numel (t.text), 1);
  if ~isempty (k)
    qn.impl.formats.refuse (t, line, '%s is %.15g, in a file of %d bytes', names{k}, x(k), numel (t.text));
  end
end
