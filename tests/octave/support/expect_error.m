% EXPECT_ERROR (FN, ID, TEXT)  FN must raise TEXT (after the host's "quarn: " prefix) under identifier ID ('' for none).
%
% EXPECT_ERROR (FN, ID, '~PATTERN') compares with a regular expression instead, which must say more than "quarn COMMAND : ".
function expect_error (fn, id, text)
  raised = false;
  try
    fn ();
  catch err
    raised = true;
  end
  if ~raised, error ('expected the error "%s", nothing was raised', text); end
  got = regexprep (err.message, '^quarn: ', '');
  if ~isempty (text) && text(1) == '~'
    % Newer libraries of regular expressions take braces with a blank in them for a count.
    if ~isempty (regexp (text, '[^\\]\{\d*, +\d*\}', 'once')), error ('the braces in the pattern "%s" need backslashes', text); end
    matches = @(said) ~isempty (regexp (said, text(2:end), 'once', 'emptymatch'));
    prefix = regexp (got, '^(quarn [^:]* : )?', 'match', 'once');
    if matches (prefix) || matches ([prefix '#']), error ('the pattern "%s" matches any text; the text was "%s"', text(2:end), got); end
    same = matches (got);
  else
    same = strcmp (got, text);
  end
  if ~same, error ('expected the error "%s", got "%s"', text, got); end
  if ~strcmp (err.identifier, id), error ('expected the identifier "%s", got "%s"', id, err.identifier); end
end
