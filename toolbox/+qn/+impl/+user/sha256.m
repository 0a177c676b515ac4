% TEXT = SHA256 (BYTES)  SHA-256 of a row of BYTES, 64 hexadecimal digits
function text = sha256 (bytes)
  if exist ('OCTAVE_VERSION', 'builtin')
    text = hash ('sha256', char (bytes));
  else
    digest = java.security.MessageDigest.getInstance ('SHA-256');
    digest.update (uint8 (bytes));
    text = lower (reshape (dec2hex (typecast (digest.digest (), 'uint8'), 2).', 1, []));
  end
end
