% EXPECT_REFUSED (FN, TEXT)      FN must raise TEXT (see EXPECT_ERROR) without an identifier, and a registered handle must survive it
% EXPECT_REFUSED (FN, TEXT, ID)  the same under the identifier ID
function expect_refused (fn, text, id)
  if nargin < 3, id = ''; end
  value = struct ('pr', [3; 1; 4], 'name', 'survivor');
  handle = quarn ('chandleset', 1, value);
  expect_error (fn, id, text);
  expect_equal (quarn ('chandleget', handle), value);
  quarn ('chandleclear', handle);
end
