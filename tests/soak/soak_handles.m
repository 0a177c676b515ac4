% [NUMBERS, COUNT] = SOAK_HANDLES (COUNT, SHARE)  handles registered, read, used and freed
function [numbers, count] = soak_handles (count, share)
  line = matrix_lines ([4 1 0; 1 5 1; 0 1 6]);
  values = {line, matrix_lines(diag ([1 2 3])), matrix_lines(sparse (3, 3)), struct('r', [0 1 2; 3 4 5], 'tft', zeros (2, 4), 'data', (1:6) / 7)};
  codes = [1 2 3 2000];
  same = 0;
  got = cell (1, 4);
  index = zeros (4, 1);
  for k = 1:1200 * share
    for j = 1:4, index(j) = quarn ('chandleset', codes(j), values{j}); end
    for j = 1:4, got{j} = quarn ('chandleget', index(j)); end
    if mod (k, 20) == 0, same = same + isequal (got, values); end
    if k == 1, first = index - index(1); end
    same = same + isequal (index - index(1), first);
    if mod (k, 2) == 0, quarn ('chandleclear'); end
    for j = [3 1 4 2], quarn ('chandleclear', index(j)); end   % keys stay listed after a "chandleclear" of all
  end
  count.handles = count.handles + 4800 * share;
  numbers = [same; size(quarn ('chandleget'))'];
end
