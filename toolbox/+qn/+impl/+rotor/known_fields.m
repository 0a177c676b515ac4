% KNOWN_FIELDS (WHO, NAME, S, KNOWN)  refuses a field of the structure S, the argument NAME, that is none of KNOWN and would not be read
function known_fields (who, name, s, known)
  other = setdiff (fieldnames (s), known);
  if isempty (other), return, end
  meant = known(strcmpi (other{1}, known));
  hint = '';
  if ~isempty (meant), hint = sprintf ('; "%s" is meant?', meant{1}); end
  error ('qn:input', '%s: "%s" has a field "%s", which nothing reads%s; its fields are %s', who, name, other{1}, hint, ...
         strjoin (known, ', '));
end
