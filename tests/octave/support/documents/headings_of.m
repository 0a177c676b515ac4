% WORDS = HEADINGS_OF (FILES)  what the headings of Markdown files name: each heading without quotes and backticks, and each of its words
function words = headings_of (files)
  words = {};
  for k = 1:numel (files)
    headings = document_headings (files{k});
    for m = 1:numel (headings)
      text = regexprep (headings{m}, '[`"]', '');
      words = [words, {text}, strsplit(text, {' ', ', '})];
    end
  end
end
