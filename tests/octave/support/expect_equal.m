% EXPECT_EQUAL (GOT, WANTED)            the same class, size and bits (see SAME_BITS)
% EXPECT_EQUAL (GOT, WANTED, TOLERANCE) the same size, every difference at most TOLERANCE times max (1, |WANTED|)
function expect_equal (got, wanted, tolerance)
  if ~isequal (size (got), size (wanted))
    error ('expected size %s, got %s', mat2str (size (wanted)), mat2str (size (got)));
  end
  if nargin < 3
    if ~strcmp (class (got), class (wanted)), error ('expected class %s, got %s', class (wanted), class (got)); end
    if ~same_bits (got, wanted), error ('expected %s, got %s', shorten (wanted), shorten (got)); end
  else
    off = abs (got(:) - wanted(:)) ./ max (1, abs (wanted(:)));
    if any (~(off <= tolerance))
      [worst, at] = max (off);
      error ('off by %g at element %d (tolerance %g): expected %.17g, got %.17g', worst, at, tolerance, wanted(at), got(at));
    end
  end
end

function s = shorten (x)
  if isnumeric (x) || ischar (x) || islogical (x)
    s = mat2str (x(1:min (end, 12)), 17);
    if numel (x) > 12, s = [s ' ...']; end
  else
    s = disp (x);
  end
end
