% TEXT = ESCAPED (TEXT)  a text of the user as it may stand in a page: no character of it is read as markup
function text = escaped (text)
  text = strrep (text, '&', '&amp;');
  text = strrep (text, '<', '&lt;');
  text = strrep (text, '>', '&gt;');
  text = strrep (text, '"', '&quot;');
  text = strrep (text, '''', '&#39;');
  text(text < ' ' & text ~= char (10)) = ' ';
end
