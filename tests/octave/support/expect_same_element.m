% EXPECT_SAME_ELEMENT (GOT, WANTED)             every in-place array of the element has the same bits
% EXPECT_SAME_ELEMENT (GOT, WANTED, TOLERANCE)  or differs by at most TOLERANCE times max (1, |WANTED|)
function expect_same_element (got, wanted, tolerance)
  names = {'unl', 'vnl', 'snl', 'opt'};
  for k = 1:numel (names)
    if ~isfield (wanted, names{k}), continue, end
    g = got.(names{k});
    w = wanted.(names{k});
    if nargin < 3
      expect_equal (g, w);
    else
      bad = ~isfinite (w);
      expect_equal (g(bad), w(bad));
      expect_equal (g(~bad), w(~bad), tolerance);
    end
  end
end
