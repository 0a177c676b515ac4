% WORDS = TABLE_WORDS (FILE, PATTERN)  the first group of every match of a regular expression in a file, a cell row
function words = table_words (file, pattern)
  found = regexp (fileread (file), pattern, 'tokens');
  words = [found{:}];
end
