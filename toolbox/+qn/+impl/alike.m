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
    if ~same || same_bits (a, b), return, end
    for k = 1:numel (a), same = same && qn.impl.alike (a{k}, b{k}); end
  elseif isstruct (a)
    same = isequal (size (a), size (b)) && isequal (sort (fieldnames (a)), sort (fieldnames (b)));
    for name = fieldnames (a).', same = same && qn.impl.alike ({a.(name{1})}, {b.(name{1})}); end
  else
    same = isequaln (a, b);
  end
end

% Cells without functions whose every bit is the same, many elements at once; others may be alike still.
function same = same_bits (a, b)
  [a, good] = qn.impl.files.flatten (a);
  same = false;
  if good, same = isequal (a, qn.impl.files.flatten (b)); end
end
