% UNCHANGED (P)  refuses a compiled law of a stored run that is not in the user's cache, or whose file has another content than it had
%
% A stored run never makes anything compile: that is for the user to say, with qn.law.
function unchanged (p)
  hint = sprintf ('qn.law (''compiled'', ''%s'', ...)', p.file);
  if ~qn.impl.user.whole (qn.impl.user.place (p))
    error ('qn:input', ['its law %s has not been compiled by this user with this content, or its library is damaged: look at the file, ' ...
                        'then %s compiles it'], p.file, hint);
  end
  if ~exist (p.file, 'file'), error ('qn:input', 'the file of its law, %s, is not there any more', p.file); end
  if ~strcmp (qn.impl.user.content (p.file), p.hash)
    error ('qn:input', ...
           ['the file of its law, %s, has changed since the run (or the compiler of CC, or quarn_law.h): put it back, or go on with ' ...
                        'the new law in a new set-up'], p.file);
  end
end
