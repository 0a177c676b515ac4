% F = MODEL_FORCES (S)  where the element's forces are: "snl", or "unl" where "snl" is absent or empty; a column
function f = model_forces (s)
  f = zeros (0, 1);
  if isfield (s, 'snl') && ~isempty (s.snl)
    f = s.snl(:);
  elseif isfield (s, 'unl')
    f = s.unl(:);
  end
end
