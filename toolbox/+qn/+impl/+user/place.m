% FILE = PLACE (P)  where the library of a compiled law with the parameters P is kept, whether it is there or not
function file = place (p)
  [~, name] = fileparts (p.file);
  name = regexprep (name, '[^A-Za-z0-9_]', '_');
  file = fullfile (qn.impl.user.cache_folder (), sprintf ('%s-%s.so', name(1:min (end, 40)), p.hash(1:32)));
end
