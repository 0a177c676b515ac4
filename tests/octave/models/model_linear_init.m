% H = MODEL_LINEAR_INIT (H)  what gathering does to a mass (2), damping (3) or stiffness (1) handle: a matrix with as many entries
% as columns gets -1 as its first index
function h = model_linear_init (h)
  if h.type == 3 && isfield (h, 'jc') && ~isempty (h.jc) && h.jc(end) == 0, return, end
  v = model_view (h);
  if v.sparse && v.jc(v.cols + 1) == v.cols, h.ir(1) = -1; end
end
