% EXPECT_PUBLISHED (CASE, QUANTITY, REFERENCE, VALUE, TOLERANCE)  VALUE is within TOLERANCE of REFERENCE
% RECORDS = EXPECT_PUBLISHED ('record')                           what was compared since the last call, which begins a new record
%
% CASE is from published. QUANTITY is a text with the unit, or a cell of one for each value; a text for several values gets their
% numbers. TOLERANCE is in the unit of the quantity, one or one a value. docs/validation.md is made of the record.
function records = expect_published (c, quantity, reference, value, tolerance)
  persistent kept;
  if ischar (c)
    records = kept;
    kept = struct ('case', {}, 'quantity', {}, 'reference', {}, 'value', {}, 'tolerance', {});
    return
  end
  if ~isequal (numel (reference), numel (value)), error ('%d references, %d values', numel (reference), numel (value)); end
  n = numel (reference);
  if ischar (quantity) && n > 1, quantity = arrayfun (@(k) sprintf ('%s, %d', quantity, k), 1:n, 'uniformoutput', false); end
  if ischar (quantity), quantity = {quantity}; end
  if numel (tolerance) == 1, tolerance = tolerance * ones (1, n); end
  for k = 1:n
    if isstruct (kept)
      kept(end + 1) = struct ('case', c, 'quantity', quantity{k}, 'reference', reference(k), 'value', value(k), 'tolerance', tolerance(k));
    end
    if ~(abs (value(k) - reference(k)) <= tolerance(k))
      error ('%s: %s is %.10g, published %.10g, off by %g, tolerance %g', c.title, quantity{k}, value(k), reference(k), ...
             abs (value(k) - reference(k)), tolerance(k));
    end
  end
end
