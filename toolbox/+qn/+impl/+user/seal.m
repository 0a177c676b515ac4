% TAIL = SEAL (BYTES)  what is written after the BYTES of a compiled law, so that a library that is damaged later is not loaded: 72 bytes
function tail = seal (bytes)
  tail = double (['quarnsum' qn.impl.user.sha256(bytes)]);
end
