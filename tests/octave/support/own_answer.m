% OWN_ANSWER (FN)  FN must end well or with an error that the module words itself, and a registered handle must survive it
%
% An error of the host's accessors means that an array was looked into before its class was known.
function own_answer (fn)
  defined = {'quarn : Unknown command', 'ir must be int32', 'Implemented for sparse matrices', 'no real part', 'Error not a valid mass', ...
             'ReportEB opt', 'FuPower requires 3 parameters', 'Incorrect unl', 'Unknown .opt(1) choice', 'Full r expected', ...
             'Inconsistent Nb & NT', 'Inconsistent data length', 'wrong uva size', 'Identical v & a', 'Identical v & u', 'Identical a & u', ...
             'iu+Nistate too large', 'Real numbers for r', 'Real numbers needed.', 'Expecting chandle vector', 'iopt must be int32', ...
             'Not a valid chandle type', 'Handle does not exist', 'xxx', 'varargin too large', 'model.K must be a 3*1 cell array', ...
             'Add_Mt_u implemented for sparse matrices', 'Prod_Mt_u implemented for transposed sparse matrices', ...
             'Need unlj1 as last dim', 'Complex numbers needed.', 'Three inputs required.', 'phi must be full', 'k must be sparse', ...
             'Inner matrix dimensions must agree.', 'ir problem', 'quarn c<-a''*b : vector a has a wrong size'};
  value = struct ('pr', [2; 7; 1]);
  handle = quarn ('chandleset', 1, value);
  try
    fn ();
  catch err
    text = regexprep (err.message, '^quarn: ', '');
    own = ~isempty (regexp (text, '^quarn \S+ : .', 'once')) || any (strcmp (text, defined));
    if ~own, error ('not a text of the module: %s', err.message); end
  end
  expect_equal (quarn ('chandleget', handle), value);
  quarn ('chandleclear', handle);
end
