% [U, V, A] = RUN_NEWMARK (LIST, U0, V0, A0, MEM, OUT)         runs the integrator on copies of the initial state
% [U, V, A] = RUN_NEWMARK (LIST, U0, V0, A0, MEM, OUT, MODEL, OPT)
%
% LIST, MEM, OUT and MODEL are written in place.
function [u, v, a] = run_newmark (list, u0, v0, a0, mem, out, model, opt)
  if nargin < 7, model = struct ('K', []); end
  if nargin < 8, opt = zeros (1, 2); end
  u = fresh (u0);
  v = fresh (v0);
  a = fresh (a0);
  quarn ('chandlediagnewmark', list, model, u, v, a, opt, mem, out);
end
