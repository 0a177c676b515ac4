% V = MODEL_VIEW (A)  fields ir, jc (0-based doubles), pr, rows, cols, trans, sparse of a matrix argument; pr empty: no matrix
function v = model_view (a)
  v = struct ('ir', [], 'jc', [], 'pr', [], 'rows', 0, 'cols', 0, 'trans', false, 'sparse', false);
  if isnumeric (a)
    v.pr = a(:);
    v.rows = size (a, 1);
    v.cols = size (a, 2);
  elseif isstruct (a) && isfield (a, 'pr')
    v.pr = a.pr(:);
    if isfield (a, 'ir'), v.ir = double (a.ir(:)); end
    if isfield (a, 'jc'), v.jc = double (a.jc(:)); end
    v.sparse = ~isempty (v.ir);
    if isfield (a, 'trans'), v.trans = a.trans(1) ~= 0; end
    if isfield (a, 'dims')
      v.rows = fix (a.dims(1));
      v.cols = fix (a.dims(2));
    else
      v.rows = size (a.jc, 1) - 1;
      v.cols = v.rows;
    end
  end
end
