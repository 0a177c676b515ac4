% AT_NODES (WHO, ROTATION, DOFS)  refuses rows of DOFS that are not x and y of a node of the rotor
function at_nodes (who, rotation, dofs)
  p = rotation.places;
  names = {'x', 'y', 'thx', 'thy'};
  for k = 1:size (dofs, 1)
    [yes, unused] = ismember (dofs(k, :), p(:, 1:2), 'rows');
    if yes, continue, end
    is = cell (1, 2);
    for j = 1:2
      [node, column] = find (p == dofs(k, j), 1);
      is{j} = 'none of the shaft';
      if ~isempty (node), is{j} = sprintf ('%s of node %d', names{column}, node); end
    end
    more = '';
    if ismember (dofs(k, [2 1]), p(:, 1:2), 'rows'), more = '; the unbalance would turn against the shaft'; end
    [node, unused] = find (p == dofs(k, 1), 1);
    if ~isempty (node) && isempty (more), more = sprintf ('; those of node %d are [%d %d]', node, p(node, 1:2)); end
    error ('qn:input', '%s: row %d of "DOFS", [%d %d], is %s and %s, not x and y of one node%s', who, k, dofs(k, :), is{:}, more);
  end
end
