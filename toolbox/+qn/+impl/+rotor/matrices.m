% S = MATRICES (WHO, NAME, S)  full M, K, C, G and N of a structure with these fields; C, G and N may be missing
%
% M and K are needed; M must be symmetric, G skew.
function s = matrices (who, name, given)
  if ~isstruct (given) || numel (given) ~= 1 || ~isfield (given, 'M') || ~isfield (given, 'K')
    error ('qn:input', '%s: "%s" must be a structure with the matrices M and K, and C and G where there are any', who, name);
  end
  for field = 'CG'
    if isfield (given, lower (field)) && ~isfield (given, field)
      error ('qn:input', '%s: "%s" has a field "%s", which nothing reads: "%s" is meant?', who, name, lower (field), field);
    end
  end
  n = size (given.M, 1);
  s = struct ('M', full (qn.impl.numbers (who, 'M', given.M, [n n])));
  for field = {'K', 'C', 'G', 'N'}
    s.(field{1}) = zeros (n);
    if isfield (given, field{1}) && (field{1} == 'K' || ~isempty (given.(field{1})))
      s.(field{1}) = full (qn.impl.numbers (who, field{1}, given.(field{1}), [n n]));
    end
  end
  even = norm (s.M - s.M.', 'fro') / norm (s.M, 'fro');
  if even > 1e-6, error ('qn:input', '%s: M of "%s" is not symmetric: M - M.'' is %.2g of it', who, name, even); end
  beside = norm (s.G + s.G.', 'fro') / norm (s.G, 'fro');
  if beside > 1e-6
    error ('qn:input', '%s: G of "%s" must be skew (G.'' = -G): its symmetric part is %.2g of it and belongs into C', who, name, ...
           beside / 2);
  end
end
