% LAW = SOUND_LAW (WHO, LAW)  a law or a bank of laws whose parameters may have been changed by hand: doubles, or an error of WHO
function law = sound_law (who, law)
  if ~isstruct (law) || ~all (isfield (law, {'kind', 'parameters'})) || isempty (law)
    error ('qn:input', '%s: a law expected, from qn.law or a recipe, got %s of class %s', who, mat2str (size (law)), class (law));
  end
  for k = 1:numel (law)
    names = fieldnames (law(k).parameters);
    args = [names, struct2cell(law(k).parameters)].';
    try
      made = qn.law (law(k).kind, args{:});
    catch err
      if ~strcmp (err.identifier, 'qn:input'), rethrow (err); end
      error ('qn:input', '%s: %s', who, err.message);
    end
    law(k).parameters = made.parameters;
  end
end
