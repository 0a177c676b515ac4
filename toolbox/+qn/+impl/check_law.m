% FOUND = CHECK_LAW (SIM, K, X)  element K against the step, and its table against the displacements X ([]: not known)
%
% An element's force is evaluated at the predictor. A spring kn there is stable while
%   kn h^2 gamma/2 < m + (gamma - 1/2) h c + (beta - gamma/2) h^2 k
% with mass m, damping c and stiffness k of the structure (docs/theory.md derives it): below h sqrt (2 gamma kn mu) = 2 with the
% mobility mu = C M^-1 B' of the right-hand side's M.
function found = check_law (sim, k, x)
  found = struct ('level', {}, 'text', {});
  e = sim.elements(k);
  h = sim.step;
  who = e.law.note;
  if isempty (who), who = qn.impl.law_text (e.law); end
  who = sprintf ('element %d (%s)', e.item, who);
  if ~any (e.observe(:)) || ~any (e.command(:)), say ('warning', 'its rows are all zero: it does nothing; see qn.observe'); end
  c = sim.model.damping;
  k = sim.model.stiffness;
  s = sim.scheme;
  if size (c, 2) == 1 && size (k, 2) == 1
    yielding = bsxfun (@rdivide, e.command.', max (eps (), 1 + (s.beta - s.gamma / 2) * h ^ 2 * k + (s.gamma - 0.5) * h * c));
  else
    yielding = (eye (numel (sim.model.w)) + (s.beta - s.gamma / 2) * h ^ 2 * qn.impl.matrix (k) + ...
                (s.gamma - 0.5) * h * qn.impl.matrix (c)) \ e.command.';
  end
  mobility = max (abs (diag (e.observe * yielding)));
  stiff = qn.impl.stiffest (e.law, x);
  ratio = h * sqrt (stiff * mobility * 2 * s.gamma);
  if ratio >= 2
    say ('error', 'too stiff for the step of %g s: with %g N/m on %g kg the motion grows without bound; take at most %.2g s', h, stiff, ...
         1 / mobility, h * 0.3 / ratio);
  elseif ratio > 0.3
    say ('warning', ['only %.0f steps pass in half a period of %g N/m on %g kg; contacts will gain or lose energy; take %.2g s or ' ...
                     'less'], ...
         floor (pi / ratio), stiff, 1 / mobility, h * 0.3 / ratio);
  end
  l = qn.impl.law_of (e.law.kind);
  if ~isempty (l.check)
    own = l.check (e.law, x, h);
    for j = 1:size (own, 1), say (own{j, 1}, '%s', own{j, 2}); end
  end

  function say (level, format, varargin)
    found(end + 1) = struct ('level', level, 'text', [who ': ' sprintf(format, varargin{:})]);
  end
end
