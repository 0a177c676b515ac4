% TEXT = SPELT (X)  a number, real or complex, for a message
function text = spelt (x)
  text = sprintf ('%.10g', real (x));
  if imag (x) ~= 0, text = sprintf ('%s%+.10gi', text, imag (x)); end
end
