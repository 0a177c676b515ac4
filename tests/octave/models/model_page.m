% N = MODEL_PAGE (S)           values in one page of the element's "unl" (0 without it)
% [N, PAGES] = MODEL_PAGE (S)  and its number of pages
function [n, pages] = model_page (s)
  n = 0;
  pages = 0;
  if isfield (s, 'unl') && ~isempty (s.unl)
    n = size (s.unl, 1) * size (s.unl, 2);
    pages = size (s.unl, 3);
  end
end
