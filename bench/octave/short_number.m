% S = SHORT_NUMBER (X)  three digits, without an exponent
function s = short_number (x)
  digits = max (0, 2 - floor (log10 (abs (x))));
  if ~isfinite (digits), digits = 0; end
  s = sprintf ('%.*f', min (digits, 5), x);
end
