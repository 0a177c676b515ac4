% TEXT = SHOWN (TEXT)  what is in a file, fit for a message: at most 40 characters, those that do not print as "?"
function text = shown (text)
  text = text(1:min (end, 40));
  text(text < 32 | text > 126) = '?';
end
