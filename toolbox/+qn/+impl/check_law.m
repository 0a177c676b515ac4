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
  if size (c, 2) > 1, c = diag (c); end
  s = sim.scheme;
  mass = max (eps (), 1 + (s.beta - s.gamma / 2) * h ^ 2 * sim.model.stiffness + (s.gamma - 0.5) * h * c);
  mobility = max (abs (diag (e.observe * bsxfun (@rdivide, e.command.', mass))));
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
  p = e.law.parameters;
  switch e.law.kind
    case 'maxwell'
      fast = h * max (p.springs ./ p.dampers);
      if fast >= 2
        say ('error', 'its shortest relaxation time is %g s, and the step %g s: its state grows without bound; take at most %.2g s', ...
             h / fast, h, h / fast / 10);
      elseif fast > 0.2
        say ('warning', 'its shortest relaxation time is only %.1f steps; take %.2g s or less', 1 / fast, h / fast / 10);
      end
    case 'power'
      if p.exponent ~= fix (p.exponent) && (isempty (x) || any (x(:) < 0))
        say ('warning', 'the exponent is not a whole number: a negative displacement gives no number; give a table instead (qn.bearing)');
      end
    case 'stickslip'
      if p.slip < 10, say ('warning', 'it compares whole newtons: a slip force of %g N is too coarse; use qn.slider', p.slip); end
    case {'table', 'clima2'}
      % The end segments of the recipes are meant to go on; that of a bearing is only a tangent.
      if isempty (x) || (~isempty (e.law.note) && isempty (strfind (e.law.note, 'bearing'))), return, end
      if strcmp (e.law.kind, 'clima2'), x = x(3, :); end
      if min (x(:)) < p.displacement(1) || max (x(:)) > p.displacement(end)
        say ('note', ['the motion goes from %g to %g m, the table from %g to %g m; beyond it the end segments go on: add knots if ' ...
                      'that is not meant'], ...
             min (x(:)), max (x(:)), p.displacement([1 end]));
      end
  end

  function say (level, format, varargin)
    found(end + 1) = struct ('level', level, 'text', [who ': ' sprintf(format, varargin{:})]);
  end
end
