% LIST = SUPPORTS (WHO, NAME, ROWS, R)  bearings or seals of qn.rotor as a struct array: rows, K, C, M, source, knots
%
% rows is 2 x n or 4 x n: what the support sees of the displacements. K, C and M are matrices over these, or functions of the speed; that
% of K may give {K, C}. source is the function that was given for K, by which equal ones are known, knots the speeds
% of tables.
function list = supports (who, name, rows, r)
  list = struct ('rows', {}, 'K', {}, 'C', {}, 'M', {}, 'source', {}, 'knots', {});
  if isempty (rows) && iscell (rows), return, end
  widths = [2 3];
  if strcmp (name, 'seals'), widths = [2 3 4]; end
  if ~iscell (rows) || ~any (size (rows, 2) == widths)
    error ('qn:input', '%s: "%s" is a cell {node, K, C; ...} with %d or %d columns, got %s of class %s', who, name, widths([1 end]), ...
           mat2str (size (rows)), class (rows));
  end
  n = size (r.M, 1);
  for k = 1:size (rows, 1)
    label = @(j) sprintf ('%s{%d, %d}', name, k, j);
    at = qn.impl.numbers (who, label (1), rows{k, 1}, [], 'list', 'whole', 'from', 1);
    if ~any (numel (at) == [1 3]) || at(1) > size (r.places, 1)
      error ('qn:input', ['%s: "%s" must be the number of a node, from 1 to %d, or [node a b] with two degrees of freedom of the ' ...
                          'stator, got %s'], who, label (1), size (r.places, 1), mat2str (at));
    end
    if numel (at) == 3 && at(2) == at(3)
      error ('qn:input', '%s: "%s" stands on degree of freedom %d of the stator with x and with y; give two, [node a b]', ...
             who, label (1), at(2));
    end
    given = [rows(k, 2:end), cell(1, 4 - size (rows, 2))];    % K, C, M
    size_of = 2;
    knots = cell (1, 3);
    for j = 1:3
      [given{j}, knots{j}] = qn.impl.rotor.coefficients (who, label (j + 1), given{j});
      if isa (given{j}, 'function_handle')
        if numel (at) == 1, size_of = max (size_of, size (r.places, 2)); end
      else
        given{j} = value_of (who, label (j + 1), given{j});
        if isnumeric (given{j}), size_of = max (size_of, size (given{j}, 1)); end
      end
    end
    if numel (at) > 1 || size (r.places, 2) < 4, size_of = 2; end
    s = struct ('rows', zeros (size_of, n), 'K', [], 'C', [], 'M', [], 'source', [], 'knots', [knots{:}]);
    s.rows(:, r.places(at(1), 1:size_of)) = eye (size_of);
    if numel (at) == 3
      if any (at(2:3) > numel (r.stator))
        error ('qn:input', '%s: "%s" names degree of freedom %d of a stator that has %d', who, label (1), max (at(2:3)), numel (r.stator));
      end
      s.rows(:, r.stator(at(2:3))) = s.rows(:, r.stator(at(2:3))) - eye (2);
    end
    names = 'KCM';
    for j = 1:3
      checks = {@(name, x) value_of (who, name, x), @(name, x) wide (who, name, x, size_of)};
      if j == 3, checks{3} = @(name, x) of_mass (who, name, at(1), x); end
      if isa (given{j}, 'function_handle')
        s.(names(j)) = @(speed) checked (checks, sprintf ('%s at %g rad/s', label (j + 1), speed), given{j} (speed));
      else
        s.(names(j)) = checked (checks(2:end), label (j + 1), given{j});
      end
    end
    if isa (s.K, 'function_handle'), s.source = rows{k, 2}; end
    list(end + 1) = s;
  end
end

function x = checked (checks, name, x)
  for check = checks, x = check{1} (name, x); end
end

% A number, two or a matrix as a matrix, or a structure of stiffness and damping as {K, C}.
function x = value_of (who, name, x)
  if isstruct (x) && all (isfield (x, {'stiffness', 'damping'}))
    x = {value_of(who, name, x.stiffness), value_of(who, name, x.damping)};
    return
  end
  if isempty (x) && isnumeric (x), x = 0; end
  x = qn.impl.numbers (who, name, x, [NaN NaN]);
  if numel (x) == 1, x = x * eye (2); end
  if numel (x) == 2, x = diag (x); end
  if ~isequal (size (x), [2 2]) && ~isequal (size (x), [4 4])
    error ('qn:input', '%s: "%s" must be one value, two (along x and y), 2 x 2 or 4 x 4, got %d x %d', who, name, size (x));
  end
end

% A matrix over x and y as one over the N degrees of freedom of a node; [] is none.
function x = wide (who, name, x, n)
  if iscell (x)
    if isempty (strfind (name, ', 2}'))
      error ('qn:input', '%s: "%s" takes no structure; stiffness and damping at once stand in the column of K', who, name);
    end
    x = {wide(who, name, x{1}, n), wide(who, name, x{2}, n)};
    return
  end
  if isempty (x), x = zeros (n); end
  if size (x, 1) > n
    error ('qn:input', '%s: "%s" has moments, for which a node needs four degrees of freedom of its own', who, name);
  end
  if size (x, 1) < n, x = blkdiag (x, zeros (n - size (x, 1))); end
end

% An added mass: its energy is that of a symmetric matrix and is not negative.
function x = of_mass (who, name, node, x)
  even = norm (x - x.', 'fro') / norm (x, 'fro');
  if even > 1e-6
    error ('qn:input', '%s: the mass "%s" at node %d is not symmetric: M - M.'' is %.2g of it', who, name, node, even);
  end
  least = min (eig ((x + x.') / 2));
  if least < -1e-9 * norm (x, 'fro')
    error ('qn:input', '%s: the mass "%s" at node %d is negative in one direction: its least eigenvalue is %g', who, name, node, least);
  end
end
