% C = CARRIED (F)   a function as what makes it up, where F is anonymous, in a form that files and processes carry: its text and the values
%                   in it; also in the elements of a cell
% F = CARRIED (C)   the function again; what is no such form comes back as it is
%
% Octave writes {} in a function as {}(0x0) with a line end, which it cannot read.
function x = carried (x)
  if isa (x, 'function_handle')
    if exist ('OCTAVE_VERSION', 'builtin') && strncmp (func2str (x), '@', 1)
      parts = functions (x);
      values = struct ();
      if isfield (parts, 'workspace') && ~isempty (parts.workspace), values = parts.workspace{1}; end
      for name = fieldnames (values).', values.(name{1}) = qn.impl.sweep.carried (values.(name{1})); end
      x = struct ('anonymous', regexprep (func2str (x), '\{\}\(0x0\)\s*\n\s*', '{}'), 'values', values);
    end
  elseif isstruct (x) && isequal (fieldnames (x), {'anonymous'; 'values'})
    x = made (x.anonymous, x.values);
  elseif iscell (x)
    for k = 1:numel (x), x{k} = qn.impl.sweep.carried (x{k}); end
  end
end

function quarn_f = made (quarn_text, quarn_values)
  for quarn_name = fieldnames (quarn_values).'
    eval ([quarn_name{1} ' = qn.impl.sweep.carried (quarn_values.(quarn_name{1}));']);
  end
  quarn_f = eval (quarn_text);
end
