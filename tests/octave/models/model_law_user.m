% [S, CTX] = MODEL_LAW_USER (S, T, CTX)  a law of the user's in the field "call" of the element
%
% iopt(3) rows of a group, iopt(4) states after the displacements.
function [s, ctx] = model_law_user (s, t, ctx)
  n = model_page (s);
  states = double (s.iopt(4));
  rows = n - states;
  group = double (s.iopt(3));
  for first = 1:group:rows
    k = first + (0:group - 1);
    if states > 0
      [s.snl(k), s.unl(rows + 1:n)] = s.call (reshape (s.unl(k), [], 1), reshape (s.vnl(k), [], 1), reshape (s.unl(rows + 1:n), [], 1), t);
    else
      s.snl(k) = s.call (reshape (s.unl(k), [], 1), reshape (s.vnl(k), [], 1), zeros (0, 0), t);
    end
  end
  ctx = model_store_state (s, ctx);
end
