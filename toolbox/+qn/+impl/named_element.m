% NAMED_ELEMENT (WHO, ERR, ELEMENTS)  raises an error of the command "residual" again, with the row of "elements" that it is about
%
% The module counts the handles of its list, where two matrices come before the elements.
function named_element (who, err, elements)
  text = regexp (err.message, 'quarn residual : element (\d+) : (.*)$', 'tokens', 'once');
  if isempty (text), rethrow (err); end
  row = elements(str2double (text{1}) - 2).item;
  error (struct ('message', sprintf ('%s: element %d: %s', who, row, text{2}), 'identifier', err.identifier));
end
