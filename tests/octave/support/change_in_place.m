% CHANGE_IN_PLACE (X, D)  adds the values of D to the data of X itself, for everyone who shares it
function change_in_place (x, d)
  n = numel (x);
  quarn ('tbbp', matrix_lines (speye (n)), d(:) + 0, x);
end
