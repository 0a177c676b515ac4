% SAME = ALIKE (A, B)  whether two values are the same, functions by their text and the values in them
function same = alike (a, b)
  same = strcmp (class (a), class (b));
  if ~same, return, end
  if isa (a, 'function_handle')
    a = functions (a);
    b = functions (b);
    same = strcmp (a.function, b.function) && isfield (a, 'workspace') == isfield (b, 'workspace');
    if same && isfield (a, 'workspace'), same = qn.impl.alike (a.workspace, b.workspace); end
  elseif iscell (a)
    same = isequal (size (a), size (b));
    for k = 1:numel (a), same = same && qn.impl.alike (a{k}, b{k}); end
  elseif isstruct (a)
    same = isequal (size (a), size (b)) && isequal (sort (fieldnames (a)), sort (fieldnames (b)));
    for name = fieldnames (a).'
      for k = 1:numel (a), same = same && qn.impl.alike (a(k).(name{1}), b(k).(name{1})); end
    end
  else
    same = isequaln (a, b);
  end
end
