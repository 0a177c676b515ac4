% X = PLAIN (X)  a value with its functions as their texts and the values in them, and its objects as their fields: to be stored and compared,
%                not to be run
function x = plain (x)
  if isa (x, 'function_handle')
    parts = functions (x);
    values = {};
    if isfield (parts, 'workspace'), values = qn.impl.sweep.plain (parts.workspace); end
    % Octave writes {} in a function as {}(0x0) with a line end, once it was read from a file without.
    x = struct ('text', regexprep (func2str (x), '\{\}\(0x0\)\s*\n\s*', '{}'), 'values', {values});
  elseif iscell (x)
    x = each (x);
  elseif strcmp (class (x), 'struct')
    [~, good] = qn.impl.files.flatten (x);
    if good, return, end
    x = cell2struct (each (struct2cell (x)), fieldnames (x), 1);
  elseif ~any (strcmp (class (x), qn.impl.files.flat_classes ()))
    x = struct ('class', class (x), 'values', fields_of (x));
  end
end

function c = each (c)
  [~, good] = qn.impl.files.flatten (c);
  if good, return, end
  for k = 1:numel (c), c{k} = qn.impl.sweep.plain (c{k}); end
end

function s = fields_of (x)
  try
    state = warning ('off', 'all');
    back = onCleanup (@() warning (state));
    s = qn.impl.sweep.plain (struct (x));
  catch
    s = [];
  end
end
