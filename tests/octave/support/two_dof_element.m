% E = TWO_DOF_ELEMENT ()  element of a model structure that observes DOFs 1 and 3 of 4 and sends its forces to the same DOFs
%
% Without a law: set "Fu" or "type".
function e = two_dof_element ()
  c = matrix_lines (sparse ([1 2], [1 3], [1 1], 2, 4), true);
  e = struct ('c', c, 'b', c, 'unl', zeros (2, 1), 'vnl', zeros (2, 1), 'StoreFNL', 0, 'FInd', int32 (0));
end
