% ADD_ONE (Y)  adds 1 to every value of the full double array Y in place: whoever shares Y's memory sees it
function add_one (y)
  n = numel (y);
  each = struct ('ir', zeros (n, 1, 'int32'), 'jc', int32 ((0:n).'), 'pr', ones (n, 1));
  quarn ('tbbp', each, ones (n, 1), y);
end
