% YES = CIRCULATES (R)  whether the rotation R of a model has a circulatory matrix; models of older versions do not know of it
function yes = circulates (r)
  yes = isfield (r, 'N') && ~isempty (r.N);
end
