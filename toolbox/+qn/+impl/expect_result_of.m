% EXPECT_RESULT_OF (WHO, X, MAKER)  refuses X unless it looks like the result of MAKER: qn.modal, qn.simulation or qn.run
function expect_result_of (who, x, maker)
  switch maker
    case 'qn.modal', fields = {'shapes', 'w'};
    case 'qn.simulation', fields = {'model', 'time', 'saved', 'start'};
    case 'qn.run', fields = {'sim', 'q', 'force', 'time_end'};
  end
  if isstruct (x) && numel (x) == 1 && all (isfield (x, fields)), return, end
  got = sprintf ('%s of class %s', mat2str (size (x)), class (x));
  if isnumeric (x) && isempty (x), got = 'nothing'; end
  if isstruct (x), got = 'another structure'; end
  error ('qn:input', '%s expects the result of %s, got %s; see help %s', who, maker, got, who);
end
