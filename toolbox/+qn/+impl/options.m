% O = OPTIONS (WHO, DEFAULTS, ARGS)  name-value pairs ARGS on top of the structure DEFAULTS
%
% A default of '<required>' has to be given. Names are those of DEFAULTS, in any case of letters; a string object
% counts as the text that it holds. Errors name the function WHO.
function o = options (who, defaults, args)
  o = defaults;
  names = fieldnames (defaults);
  if mod (numel (args), 2) ~= 0
    error ('qn:input', '%s: names and values expected in pairs, got %d arguments; the names are %s', who, numel (args), ...
           strjoin (names.', ', '));
  end
  given = false (size (names));
  if any (cellfun ('isclass', args, 'string')), args = cellfun (@qn.impl.chars, args, 'UniformOutput', false); end
  for k = 1:2:numel (args)
    if ~ischar (args{k})
      error ('qn:input', '%s: the name of a parameter expected, got an array of class %s; there are %s', who, class (args{k}), ...
             strjoin (names.', ', '));
    end
    known = strcmpi (args{k}, names);
    if ~any (known)
      error ('qn:input', '%s: no parameter called "%s"; there are %s', who, args{k}, strjoin (names.', ', '));
    end
    if given(known), error ('qn:input', '%s: the parameter "%s" is given twice', who, names{known}); end
    given(known) = true;
    o.(names{known}) = args{k + 1};
  end
  missing = find (strcmp (struct2cell (o), '<required>'), 1);
  if ~isempty (missing)
    error ('qn:input', '%s: the parameter "%s" is missing; see help %s', who, names{missing}, strtok (who, ','));
  end
end
