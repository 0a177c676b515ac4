% E = ENERGY_LIMIT (SIM, S)  motion that the state S can become without loads: the root of twice the energy in it [m/s sqrt(kg)]
%
% Structure and elements that only store and dissipate cannot get more energy than is in the state, that in the elements counted from
% its least value. A load p adds to the root of twice the energy at most the integral of |p|, as its rate of work is at most |p| |v|
% with masses of 1. Inf where something could feed the motion by right: a stiffness that is not symmetric or not positive, negative
% damping, what changes with time and is not gyroscopic, an element that acts elsewhere than it observes, or a law whose energy has no bound.
function e = energy_limit (sim, s)
  e = Inf;
  m = numel (sim.model.w);
  if numel (qn.impl.varying (sim)) > qn.impl.runs_up (sim), return, end
  if ~passive (sim.model.damping, Inf) || ~passive (sim.model.stiffness, 0), return, end
  energy = qn.impl.motion (sim, s) ^ 2 / 2;
  for k = 1:numel (sim.elements)
    x = sim.elements(k);
    l = qn.impl.law_of (x.law.kind);
    if isempty (l.reserve) || ~isequal (x.observe, x.command), return, end
    t = qn.impl.traits (x.law, size (x.observe, 1));
    state = s.u(x.state - 1 + (1:t.states));
    if t.inner > 0, state = s.values{2 + k, 2}.unl(1 + (1:t.inner), 1, 3); end
    energy = energy + l.reserve (x.law.parameters, x.observe * s.u(1:m), state);
  end
  e = sqrt (2 * energy);
end

% Whether a matrix, or the diagonal of one, gives no negative x' C x; what is not symmetric in it is at most SKEW.
function good = passive (c, skew)
  if size (c, 2) == 1
    good = all (c >= 0);
    return
  end
  scale = norm (c, 'fro');
  good = norm (c - c.', 'fro') <= max (1e-9 * scale, skew) && min (eig ((c + c.') / 2)) >= -1e-9 * scale;
end
