% O = GIVES_NO_COPY ()  object whose method "deal", which the host copies objects with, answers with nothing
function o = gives_no_copy ()
  o = class (struct ('x', 1), 'gives_no_copy');
end
