% FINITE_MODEL (WHO, MODEL)  an error where products of finite numbers became none
function finite_model (who, model)
  for name = {'shapes', 'stiffness', 'damping'}
    values = model.(name{1});
    if ~all (isfinite (values(:)))
      error ('qn:input', '%s: the modal %s is beyond all numbers; look at the units of K, M and of what damps', who, name{1});
    end
  end
end
