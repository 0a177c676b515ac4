% E = PAGE_ELEMENT (WORD, PARAMETERS, PAGE)  element of the force law WORD without states that observes each row of u and v as it is
%
% opt = [code; PARAMETERS]. The element observes PAGE rows; force k goes to row k of the residual.
function e = page_element (word, parameters, page)
  line = matrix_lines (eye (page), true);
  e = struct ('type', 1003, 'c', line, 'b', line, 'opt', [law_code(word); parameters(:)]);
  e.unl = zeros (page, 1);
  e.vnl = zeros (page, 1);
  e.snl = zeros (page, 1);
  e = fresh (e);
end
