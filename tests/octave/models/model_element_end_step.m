% S = MODEL_ELEMENT_END_STEP (S)  copies a page within "unl" and "vnl" to the front, from element 2*PAGES on (0-based)
%
% The source offset is twice the number of pages, not twice their length. What would be past the last value is left out.
function s = model_element_end_step (s)
  [n, pages] = model_page (s);
  if pages <= 1, return, end
  s.unl = move (s.unl, 2 * pages, n);
  if isfield (s, 'vnl') && ~isempty (s.vnl), s.vnl = move (s.vnl, 2 * pages, n); end
end

function x = move (x, offset, n)
  n = min (n, numel (x) - offset);
  if n > 0, x(1:n) = x(offset + (1:n)); end
end
