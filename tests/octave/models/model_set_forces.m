% S = MODEL_SET_FORCES (S, FORCE)  puts forces where MODEL_FORCES finds them
function s = model_set_forces (s, force)
  if isfield (s, 'snl') && ~isempty (s.snl)
    s.snl(1:numel (force)) = force;
  else
    s.unl(1:numel (force)) = force;
  end
end
