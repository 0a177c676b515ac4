% YES = WHOLE (LIBRARY)  whether a compiled law is there, with the bytes that it was written with; see qn.impl.user.seal
function yes = whole (library)
  yes = false;
  if ~exist (library, 'file') || exist (library, 'dir'), return, end
  bytes = qn.impl.user.bytes_of (library);
  n = numel (bytes) - 72;
  yes = n > 0 && isequal (bytes(n + 1:end), qn.impl.user.seal (bytes(1:n)));
end
