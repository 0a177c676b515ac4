% SAME = SAME_BITS (GOT, WANTED)  whether two values have the same class, size and bits, the values inside cells and structures too
%
% 0 and -0 differ, and so do a real array and a complex one without imaginary parts. Any NaN is the same as any other: neither host promises
% the bits of one. The fields of a structure may stand in another order.
function same = same_bits (got, wanted)
  same = strcmp (class (got), class (wanted)) && isequal (size (got), size (wanted));
  if ~same
    return
  elseif iscell (got)
    for k = 1:numel (got), same = same && same_bits (got{k}, wanted{k}); end
  elseif isstruct (got)
    names = fieldnames (got);
    same = isequal (sort (names), sort (fieldnames (wanted)));
    for k = 1:numel (names) * same
      same = same && same_bits ({got.(names{k})}, {wanted.(names{k})});
    end
  elseif isfloat (got)
    same = isreal (got) == isreal (wanted) && issparse (got) == issparse (wanted) && same_floats (real (got), real (wanted)) && ...
           (isreal (got) || same_floats (imag (got), imag (wanted)));
  else
    same = isequaln (got, wanted) && issparse (got) == issparse (wanted);
  end
end

% Of equal numbers only zeros can have other bits: a sign.
function same = same_floats (got, wanted)
  same = isequaln (got, wanted) && isequal (1 ./ got(got == 0), 1 ./ wanted(wanted == 0));
end
