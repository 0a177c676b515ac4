% YES = BY_SPEED (R)  whether the rotation R of a model has a table by speed; models of older versions do not know of it
function yes = by_speed (r)
  yes = isfield (r, 'table') && ~isempty (r.table);
end
