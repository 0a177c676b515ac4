% P = PREPARED (WHO, P)  parameters of a compiled law, with its file's whole path and the hash of its content; compiled where it is new
%
% A law that has a hash is one that was made before: it stays what it was.
function p = prepared (who, p)
  if ~isempty (p.hash)
    if isempty (regexp (p.hash, '^[0-9a-f]{64}$', 'once'))
      error ('qn:input', '%s: "hash" must be that of a law that qn.law made, 64 hexadecimal digits', who);
    end
    return
  end
  [~, ~, kind] = fileparts (p.file);
  if ~strcmp (kind, '.c'), error ('qn:input', '%s: "file" must be the name of a C file, NAME.c, got %s', who, p.file); end
  if p.file(1) ~= filesep (), p.file = fullfile (pwd (), p.file); end
  p.hash = qn.impl.user.content (p.file);
  qn.impl.user.library (p);
end
