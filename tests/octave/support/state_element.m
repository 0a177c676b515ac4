% E = STATE_ELEMENT (WORD, PARAMETERS, IOPT, PAGE)  element of the force law WORD that observes each row of u as it is
% E = STATE_ELEMENT (WORD, PARAMETERS, IOPT, PAGE, PAGES)
%
% PARAMETERS are those after the law code and an unused value: opt = [code; 0; PARAMETERS]. The element observes PAGE rows of u and
% v; unl and vnl have PAGES pages (1). Force k goes to row k of the residual.
function e = state_element (word, parameters, iopt, page, pages)
  if nargin < 5, pages = 1; end
  line = matrix_lines (eye (page), true);
  e = struct ('type', 1003, 'c', line, 'b', line, 'opt', [law_code(word); 0; parameters(:)], 'iopt', int32 (iopt(:)));
  e.unl = zeros (page, 1, pages);
  e.vnl = zeros (page, 1, pages);
  e.snl = zeros (page, 1);
  e = fresh (e);
end
