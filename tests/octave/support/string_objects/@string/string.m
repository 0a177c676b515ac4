% S = STRING (TEXT)  what stands for MATLAB's string object in tests
function s = string (text)
  s = class (struct ('text', text), 'string');
end
