% X = NUMBERS (WHO, NAME, X, SHAPE, RULE, ...)  X as doubles, or an error that names function, argument, place and value
%
% X must be finite real numbers, in a matrix that is not empty. Single precision and integer classes are converted; truth values and
% characters are refused: as numbers they are slips.
%   SHAPE   []: any; N: N values in a row or in a column; [R C]: R rows and C columns, NaN for any number of them
%   RULE    'above', L     each above L              'from', L      each at least L          'to', L  each at most L
%           'whole'        no fractions              'ascending'    each above the one before
%           'list'         a row or a column         'empty'        may be empty
%           'complex', 'infinite'                    may be so
%           'each', TEXT   what the values are, for the message about their number, such as 'one a mode'
function x = numbers (who, name, x, shape, varargin)
  if plain (x, shape, varargin), return, end
  r = struct ('above', -Inf, 'from', -Inf, 'to', Inf, 'each', '', 'whole', false, 'ascending', false, 'list', false, 'empty', false, ...
              'complex', false, 'infinite', false);
  k = 1;
  while k <= numel (varargin)
    if islogical (r.(varargin{k}))
      r.(varargin{k}) = true;
      k = k + 1;
    else
      r.(varargin{k}) = varargin{k + 1};
      k = k + 2;
    end
  end
  one = isequal (shape, [1 1]);
  if ~isnumeric (x)
    hint = '';
    if islogical (x), hint = '; where 0 and 1 are meant, write double (...)'; end
    error ('qn:input', '%s: "%s" must be %s, got %s of class %s%s', who, name, kind_of (one), sized (x), class (x), hint);
  end
  x = double (x);
  if isempty (x) && r.empty, return, end
  fit (who, name, x, shape, one, r);
  refuse = @(bad, what) at (who, name, x, find (bad, 1), what);
  if ~r.complex && ~isreal (x)
    refuse (imag (x), 'real');
    x = real (x);
  end
  if ~r.infinite
    refuse (isnan (x) | isinf (x), 'finite');
  else
    refuse (isnan (x), 'no NaN');
  end
  if r.above > -Inf, refuse (x <= r.above, sprintf ('above %g', r.above)); end
  if r.from > -Inf && r.to < Inf
    refuse (x < r.from | x > r.to, sprintf ('from %g to %g', r.from, r.to));
  elseif r.from > -Inf
    refuse (x < r.from, sprintf ('at least %g', r.from));
  elseif r.to < Inf
    refuse (x > r.to, sprintf ('at most %g', r.to));
  end
  if r.whole, refuse (x ~= fix (x), 'whole'); end
  if r.ascending
    k = find (diff (x(:)) <= 0, 1);
    if ~isempty (k)
      error ('qn:input', '%s: "%s" must ascend: value %d is %.15g, value %d is %.15g', who, name, k, x(k), k + 1, x(k + 1));
    end
  end
end

% Whether X is right beyond doubt, the most frequent case: the rest of this file then has nothing to say.
function good = plain (x, shape, rules)
  good = isa (x, 'double') && isreal (x) && ~isempty (x) && ndims (x) == 2 && isfinite (sum (x(:)));
  if ~good, return, end
  [rows, columns] = size (x);
  if numel (shape) == 1
    good = numel (x) == shape && (rows == 1 || columns == 1);
  elseif numel (shape) == 2
    good = (rows == shape(1) || isnan (shape(1))) && (columns == shape(2) || isnan (shape(2)));
  end
  k = 1;
  while good && k <= numel (rules)
    switch rules{k}
      case 'above', good = all (x(:) > rules{k + 1});
      case 'from', good = all (x(:) >= rules{k + 1});
      case 'to', good = all (x(:) <= rules{k + 1});
      case 'whole', good = all (x(:) == fix (x(:)));
      case 'ascending', good = all (diff (x(:)) > 0);
      case 'list', good = rows == 1 || columns == 1;
    end
    k = k + 1 + any (strcmp (rules{k}, {'above', 'from', 'to', 'each'}));
  end
end

function fit (who, name, x, shape, one, r)
  got = size (x);
  matches = @(s) all (isnan (shape) | s == shape);
  good = numel (got) == 2 && ~isempty (x) && (~r.list || any (got == 1));
  if numel (shape) == 1
    good = good && any (got == 1) && numel (x) == shape;
  elseif numel (shape) == 2
    good = good && matches (got);
  end
  if good, return, end
  wanted = 'numbers';
  if numel (shape) == 2, wanted = sprintf ('%s x %s numbers', letter (shape(1)), letter (shape(2))); end
  if isequaln (shape, [NaN NaN]), wanted = 'a matrix of numbers'; end
  if numel (shape) == 1, wanted = regexprep (sprintf ('%d values', shape), '^1 values', '1 value'); end
  if r.list && isempty (shape) || numel (shape) == 1 && numel (x) == shape, wanted = [wanted ' in a row or a column']; end
  if one, wanted = kind_of (true); end
  if ~isempty (r.each), wanted = [wanted ', ' r.each]; end
  turned = '';
  if numel (shape) == 2 && ~isempty (x) && numel (got) == 2 && matches (got([2 1])) && as_table (x, shape)
    what = 'X';
    if isvarname (name), what = name; end
    turned = sprintf ('. It looks transposed: give %s.'' instead of %s', what, what);
  end
  error ('qn:input', '%s: "%s" must be %s, got %s%s', who, name, wanted, sized (x), turned);
end

% Whether the first of two columns ascends, as the times of a table do that was given in columns.
function yes = as_table (x, shape)
  yes = ~isequaln (shape, [2 NaN]) || all (diff (x(:, 1)) > 0);
end

function text = kind_of (one)
  if one, text = 'one finite real number'; else, text = 'numbers'; end
end

function text = letter (n)
  text = sprintf ('%d', n);
  if isnan (n), text = 'n'; end
end

function text = sized (x)
  text = strjoin (arrayfun (@(n) sprintf ('%d', n), size (x), 'uniformoutput', false), ' x ');
  if isempty (x), text = ['nothing (' text ')']; end
end

% Raises the error for value K of X, if there is one.
function at (who, name, x, k, what)
  if isempty (k), return, end
  v = full (x(k));
  value = sprintf ('%.15g', real (v));
  if imag (v) ~= 0, value = sprintf ('%s%+.15gi', value, imag (v)); end
  if numel (x) == 1
    if any (strcmp (what, {'finite', 'real'})), what = 'one finite real number'; end
    if strcmp (what, 'whole'), what = 'a whole number'; end
    error ('qn:input', '%s: "%s" must be %s, got %s', who, name, what, value);
  end
  place = sprintf ('%d', k);
  [i, j] = ind2sub (size (x), k);
  if all (size (x) > 1), place = sprintf ('%d, %d', i, j); end
  if any (strcmp (what, {'finite', 'real', 'whole'}))
    error ('qn:input', '%s: "%s"(%s) is %s; %s numbers expected', who, name, place, value, what);
  end
  error ('qn:input', '%s: "%s"(%s) is %s; each must be %s', who, name, place, value, what);
end
