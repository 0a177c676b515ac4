% TEXT = FREEDOM (MODEL, K)  one degree of freedom; of a rotor of qn.rotor with its node
function text = freedom (model, k)
  text = sprintf ('degree of freedom %d', k);
  if ~isfield (model, 'rotation') || ~isfield (model.rotation, 'places'), return, end
  [node, way] = find (model.rotation.places == k, 1);
  if isempty (node), return, end
  names = {'x', 'y', 'thx', 'thy'};
  text = sprintf ('node %d %s (%s)', node, names{way}, text);
end
