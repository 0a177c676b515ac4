% QN.GRID  all combinations of parameters, as the cases of a sweep
%
% Purpose
%   Makes a struct array with a field for each parameter and an element for each combination of their values.
%
% Calls
%   CASES = qn.grid (NAME, VALUES, ...)
%
% Input
%   NAME     name of a parameter, as a field is named
%   VALUES   numbers, or a cell array of anything
%
% Output
%   CASES    struct array with a dimension for each parameter, in their order: CASES(i, j) has the i-th value of the first and the
%            j-th of the second. n x 1 for one parameter
%
% Errors
%   qn:input  names and values are not in pairs, a name is no field's name or is there twice
%
% Example
%   cases = qn.grid ('gap', [1e-3 2e-3 4e-3], 'shape', {'round', 'flat'});
%   cases(3, 2)
%
% See also qn.sweep
function cases = grid (varargin)
  if nargin == 0 || mod (nargin, 2) ~= 0
    error ('qn:input', 'qn.grid: names and values expected in pairs, got %d arguments', nargin);
  end
  names = varargin(1:2:end);
  values = varargin(2:2:end);
  counts = ones (1, max (2, numel (names)));
  for k = 1:numel (names)
    if ~isvarname (names{k}), error ('qn:input', 'qn.grid: argument %d is no name of a field', 2 * k - 1); end
    if any (strcmp (names{k}, names(1:k - 1))), error ('qn:input', 'qn.grid: "%s" is there twice', names{k}); end
    if ~iscell (values{k}), values{k} = num2cell (values{k}); end
    counts(k) = numel (values{k});
  end
  % Value j of the first parameter is that of the elements j, j + counts(1), ...; of the second that of counts(1) elements in succession, ...
  each = cell (numel (names), prod (counts));
  inner = 1;
  for k = 1:numel (names)
    at = 1 + mod (floor ((0:size (each, 2) - 1) / inner), counts(k));
    each(k, :) = reshape (values{k}(at), 1, []);
    inner = inner * counts(k);
  end
  cases = reshape (cell2struct (each, names(:), 1), counts);
end
