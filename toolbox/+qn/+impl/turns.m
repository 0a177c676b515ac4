% YES = TURNS (MODEL)  whether anything in a model depends on the speed of rotation
function yes = turns (model)
  yes = isfield (model, 'rotation') && ~isempty (model.rotation);
  if ~yes, return, end
  r = model.rotation;
  yes = any (r.G(:)) || qn.impl.circulates (r) || qn.impl.by_speed (r);
end
