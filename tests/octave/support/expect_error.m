% EXPECT_ERROR (FN, ID, TEXT)  FN must raise TEXT (after the host's "quarn: " prefix) under identifier ID ('' for none).
%
% EXPECT_ERROR (FN, ID, '~PATTERN') compares with a regular expression instead.
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
    same = ~isempty (regexp (got, text(2:end), 'once'));
  else
    same = strcmp (got, text);
  end
  if ~same, error ('expected the error "%s", got "%s"', text, got); end
  if ~strcmp (err.identifier, id), error ('expected the identifier "%s", got "%s"', id, err.identifier); end
end
