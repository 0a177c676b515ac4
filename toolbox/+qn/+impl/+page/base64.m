% TEXT = BASE64 (BYTES)  bytes as text of 64 characters (RFC 4648)
function text = base64 (bytes)
  letters = ['A':'Z', 'a':'z', '0':'9', '+/'];
  n = numel (bytes);
  fill = mod (-n, 3);
  b = reshape (double ([bytes(:); zeros(fill, 1)]), 3, []);
  word = 65536 * b(1, :) + 256 * b(2, :) + b(3, :);
  digits = [floor(word / 262144); mod(floor (word / 4096), 64); mod(floor (word / 64), 64); mod(word, 64)];
  text = letters(digits(:).' + 1);
  text(end - fill + 1:end) = '=';
end
