% MATLAB's function of that name, for the one object
function text = convertStringsToChars (s)
  text = s.text;
end
