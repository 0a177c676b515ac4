% S = MODAL_VALUE (SIM, X)  value of a handle for the modal stiffness or damping X of a set-up
%
% X is m x 1 where the matrix is diagonal, else m x m; the states of elements have rows of zeros.
function s = modal_value (sim, x)
  n = numel (sim.model.w) + sim.states;
  if size (x, 2) == 1
    d = zeros (n, 1);
    d(1:numel (x)) = x;
    s = diagonal (d);
  else
    padded = zeros (n, n);
    padded(1:size (x, 1), 1:size (x, 1)) = x;
    s = every_entry (padded.');
  end
end

% As many stored values as columns, zeros included: the module then takes the matrix as diagonal.
function s = diagonal (d)
  n = numel (d);
  s = struct ('ir', int32 ((0:n - 1).'), 'jc', int32 ((0:n).'), 'pr', d, 'dims', [n n], 'trans', 0);
end

% Every entry is stored, so that no matrix beside a diagonal one is taken as diagonal. The lines of the handle are the rows of the matrix.
function s = every_entry (c)
  n = size (c, 1);
  s = struct ('ir', int32 (repmat ((0:n - 1).', n, 1)), 'jc', int32 (n * (0:n).'), 'pr', c(:), 'dims', [n n], 'trans', 0);
end
