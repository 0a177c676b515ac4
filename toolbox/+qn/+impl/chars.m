% X = CHARS (X)  a string object as a character vector, an array of them as a cell of those, everything else as it is
%
% In MATLAB a text in double quotes is a "string" object. GNU Octave has none: there a text is a character vector in either quotes.
function x = chars (x)
  if isa (x, 'string'), x = convertStringsToChars (x); end
end
