% FILE = LIBRARY (P)  library of a compiled law with the parameters P; compiled where it is not there, as on a node that has not seen the law,
% or where it is damaged
function file = library (p)
  file = qn.impl.user.place (p);
  if qn.impl.user.whole (file), return, end
  [hash, source, header] = qn.impl.user.content (p.file);
  if ~strcmp (hash, p.hash)
    error ('qn:input', ...
           ['the compiled law %s is not in the cache of this user, and its file (or the compiler of CC) is not the one that the ' ...
                        'law was made from: make the law anew with qn.law'], p.file);
  end
  qn.impl.user.build (p.file, source, header, file);
end
