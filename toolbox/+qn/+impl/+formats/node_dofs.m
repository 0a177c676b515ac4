% [K, DOFS] = NODE_DOFS (NODES, NUMBERS)  place of each pair of node and degree of freedom among all, and the list of these
%
% NODES are numbers, or a cell of texts. Nodes ascend, negative ones (made by the solver) come last; texts are in the order of letters.
function [k, dofs] = node_dofs (nodes, numbers)
  if iscell (nodes)
    [names, unused, number] = unique (nodes(:));
    [pairs, unused, k] = unique ([number(:), numbers(:)], 'rows');
    node = reshape (names(pairs(:, 1)), [], 1);
  else
    [pairs, unused, k] = unique ([nodes(:) < 0, nodes(:), numbers(:)], 'rows');
    node = pairs(:, 2);
  end
  k = k(:);
  dofs = struct ('node', {node}, 'dof', pairs(:, end));
end
