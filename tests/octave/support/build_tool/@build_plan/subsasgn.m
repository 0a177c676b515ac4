% plan.NAME = VALUE, and plan(TASK).Dependencies = VALUE as in MATLAB
function plan = subsasgn (plan, at, value)
  if strcmp (at(1).type, '()')
    plan.Dependencies.(at(1).subs{1}) = value;
  else
    plan.(at(1).subs) = value;
  end
end
