% F = FREES_HANDLES ()  object that frees every handle while it is copied
function f = frees_handles ()
  f = class (struct ('x', 1), 'frees_handles');
end
