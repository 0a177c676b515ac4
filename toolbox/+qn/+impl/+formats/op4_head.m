% WHY = OP4_HEAD (H, LIMIT)  what is wrong with the numbers in the head of a matrix, '' where nothing is
function why = op4_head (h, limit)
  why = '';
  if ~any (h.type == 1:4)
    why = sprintf ('type %.15g; 1 to 4 expected', h.type);
  elseif ~any (h.form == [1 2 4 5 6])
    why = sprintf ('form %.15g; 1 (square), 2 (rectangular), 4 (lower), 5 (upper) or 6 (symmetric) expected', h.form);
  elseif h.columns < 1 || h.rows < 1 || h.columns > limit || h.rows > limit
    why = sprintf ('a matrix of %.15g x %.15g; from 1 to %d rows and columns expected in a file of this length', h.rows, h.columns, limit);
  end
end
