% [NUMBERS, COUNT] = SOAK_INTEGRATIONS (COUNT, SHARE)  runs of the integrator, with handles of the call and with registered ones
%
% The matrices are full, so that the integrator calls every handle in every step.
function [numbers, count] = soak_integrations (count, share)
  n = 40000 * share + 1;
  h = 0.001;
  k = [4 0.1 0; 0.1 5 0.2; 0 0.2 60];
  c = [0.3 0.01 0; 0.01 0.1 0; 0 0 0.1];
  loads = mod (0:n - 1, 128) / 64 - 1;
  stiffness = typed (1, k);
  damping = typed (3, c);
  cubic = spring_element (1, 1, 3, [law_code('Power') 2 3]);
  stop = spring_element ([1 2], [1 -1], 3, [law_code('Table') 0 0 0 -1 0 1 -2 0 1], int32 ([-1; 0; 0; 0; 0; 4; 1; 3; 1]));
  dahl = state_element ('DahlC', [h; 3; 1; 0.5; 2], [-1 -1 0 0 0], 2, 3);
  dahl.c = matrix_lines (eye (2, 3), true);
  dahl.b = dahl.c;
  numbers = zeros (0, 1);
  for round = 1:2
    [integrator, mem, out] = newmark_setup ([1; 2; 3], [0.3; 0.1; 0.1], [4; 5; 60], [1; -1; 0.5], loads, h, 0.25, 0.5, (4000:4000:40000) * share + 1);
    if round == 1
      list = fresh ({integrator, stiffness, damping, cubic, stop, dahl});
      handles = 5;
    else
      [list, index] = registered ({integrator, stiffness, damping, stiffness});
      handles = 3;
    end
    u = zeros (3, 1);
    v = zeros (3, 1);
    a = zeros (3, 1);
    quarn ('chandlediagnewmark', list, struct ('K', []), u, v, a, [0.01 0.02], mem, out);
    numbers = [numbers; u; v; a; out.def(:)];
    count.steps = count.steps + n - 1;
    count.evaluations = count.evaluations + (n - 1) * handles;
  end
  for i = index, quarn ('chandleclear', i); end
end
