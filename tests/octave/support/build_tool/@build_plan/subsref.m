% plan.NAME and what is in it
function value = subsref (plan, at)
  value = plan.(at(1).subs);
  if numel (at) > 1, value = subsref (value, at(2:end)); end
end
