% FOUND = CHECK_LAW (SIM, K, X, MOTION, STATE, F, RECORD)  element K against the step, the displacements X, the memory STATE, the forces F
% and the law's RECORD of a result ([]: not known), and the motion that can be
%
% An element's force is evaluated at the predictor. A spring kn there is stable while h sqrt (2 gamma kn mu) < 2 with the mobility mu
% (qn.impl.mobility; docs/theory.md derives it), a damper cn while h cn mu < 2, both together while the sum of gamma kn mu h^2 / 2 and
% cn mu h / 2 is below 1. MOTION bounds each modal coordinate of the linear model (qn.impl.motion_bound).
function found = check_law (sim, k, x, motion, state, f, record)
  found = qn.impl.finding ();
  e = sim.elements(k);
  h = sim.step;
  who = e.law.note;
  if isempty (who), who = qn.impl.law_text (e.law); end
  who = sprintf ('element %d (%s)', e.item, who);
  if ~any (e.observe(:)) || ~any (e.command(:))
    say ('element_zero', 'warning', 'its rows are all zero: it does nothing; see qn.observe');
    return
  end
  own = qn.impl.traits (e.law, 2);
  if size (e.observe, 1) == 2 && own.rows == 2 && rank (e.observe) < 2
    say ('element_one_way', 'warning', ['its two rows observe the same direction, each a multiple of the other: x and y of a shaft are ' ...
                                        'meant. Numbers of degrees of freedom, or modes that move one way only?']);
  end
  mobilities = diag (qn.impl.mobility (sim, e.observe, e.command));
  mobility = max (abs (mobilities));
  can = max (abs (e.observe) * motion);
  kink = qn.impl.reach (e.law);
  within = x;
  % What the linear model cannot reach, and nothing else pushes it to, does not count before the run.
  if isempty (x) && isfinite (kink) && kink > can && can > 0 && ~any (sim.start.FNL)
    far ();
    within = ones (size (e.observe, 1), 1) * [-can, can];
  end
  stiff = qn.impl.stiffest (e.law, within, state);
  ratio = h * sqrt (stiff * mobility * 2 * sim.scheme.gamma);
  if ratio >= 2 && lasts ()
    say ('element_unstable', 'error', ['too stiff for the step of %g s: with %g N/m on %g kg the motion grows without bound; take at ' ...
                                       'most %.2g s'], h, stiff, 1 / mobility, h * 0.3 / ratio);
  elseif ratio >= 2
    say ('element_unstable', 'warning', ['too stiff for the step of %g s where it has %g N/m on %g kg: a contact there throws the ' ...
                                         'structure back with energy of its own, and where that lasts the motion grows without bound; ' ...
                                         'take at most %.2g s'], h, stiff, 1 / mobility, h * 0.3 / ratio);
  elseif ratio > 0.3
    say ('element_coarse', 'warning', ['only %.0f steps pass in half a period of %g N/m on %g kg; contacts will gain or lose energy; ' ...
                                       'take %.2g s or less'], floor (pi / ratio), stiff, 1 / mobility, h * 0.3 / ratio);
  end
  viscous = qn.impl.viscous (e.law, x, f);
  share = h * viscous * mobility / 2;
  if ratio < 2 && (ratio / 2) ^ 2 + share >= 1
    [level, what] = deal ('error', 'the motion grows without bound');
    [~, least] = qn.impl.at_least (e.law, [], []);
    if h * least * mobility < 2
      [level, what] = deal ('warning', 'a step takes away the whole velocity or throws it back');
    end
    say ('damper_unstable', level, 'its damping is too strong for the step of %g s: with %g N s/m on %g kg %s; take at most %.2g s', h, ...
                                   viscous, 1 / mobility, what, h * min (0.1 / share, 0.3 / max (ratio, 0.3)));
  elseif ratio < 2 && share > 0.1
    say ('damper_coarse', 'warning', ['it slows %g kg down within %.1f steps, with %g N s/m: its damping may come out %.0f %% too ' ...
                                      'strong; take %.2g s or less, or give linear damping to the model'], 1 / mobility, ...
                                     0.5 / share, viscous, 100 * share, h * 0.05 / share);
  end
  [level, text] = qn.impl.chatter (sim, e, max (mobilities), motion, x);
  if ~isempty (level), say ('damper_chatter', level, '%s', text); end
  l = qn.impl.law_of (e.law.kind);
  if ~isempty (l.check)
    t = qn.impl.traits (e.law, size (e.observe, 1));
    if t.record > 0, state = record; end
    own = l.check (e.law, x, h, state);
    for j = 1:size (own, 1), say (own{j, 1}, own{j, 2}, '%s', own{j, 3}); end
  end
  use = qn.impl.grid_use (sim, e, x, record);
  for j = 1:size (use, 1), say (use{j, 1}, use{j, 2}, '%s', use{j, 3}); end
  beside ();
  if qn.impl.runs_up (sim) && spins (e.law.parameters)
    say ('law_speed', 'warning', ['its shaft turns at %g rad/s all the time, and the rotor runs from %g to %g rad/s: the law keeps the ' ...
                                  'speed that it was given. Run at steady speeds, or in parts that go on with ''start'', each with ' ...
                                  'the law of its speed'], e.law.parameters.speed, sim.speed(2, [1 end]));
  end

  % A rubbing ring or a film whose shaft turns with another speed than the rotor. A damper without speed of its own does not turn with it.
  function beside ()
    p = e.law.parameters;
    r = [];
    if isfield (sim.model, 'rotation'), r = sim.model.rotation; end
    if qn.impl.runs_up (sim) || ~qn.impl.turns (sim.model) || ~isfield (p, 'speed'), return, end
    if isfield (p, 'friction')
      if p.friction == 0 || abs (p.speed - r.speed) <= 1e-3 * abs (r.speed), return, end
    elseif p.speed == 0 || abs (p.speed - r.speed) <= 1e-3 * abs (r.speed)
      return
    end
    say ('law_speed', 'warning', 'its shaft turns at %g rad/s, and the rotor at %g rad/s: give both the same speed', p.speed, r.speed);
  end

  % Whether its force depends on a speed of rotation.
  function yes = spins (p)
    yes = isfield (p, 'speed') && p.speed ~= 0 && (~isfield (p, 'friction') || p.friction * p.radius ~= 0);
  end

  % Whether it is above the limit all the time or, in a result, for three steps in succession, in which the motion grows many times.
  function yes = lasts ()
    limit = 4 / (h ^ 2 * mobility * 2 * sim.scheme.gamma);
    yes = qn.impl.softest (e.law) >= limit;
    if ~yes && ~isempty (x)
      % After the displacements of the result come those that only the prediction met.
      if size (state, 2) == 0, state = zeros (0, size (x, 2)); end
      yes = qn.impl.stiff_for_long (e.law, x(:, 1:size (state, 2)), state, limit);
    end
  end

  function far ()
    level = 'note';
    if kink > 10 * can, level = 'warning'; end
    say ('gap_far', level, ...
      ['its play or first knot of %g m is %.2g times as far as the structure moves there at most (%.2g m): it is not ' ...
                            'reached. Lengths are in m: 20 mm are 0.02'], kink, kink / can, can);
  end

  function say (code, level, format, varargin)
    found(end + 1) = qn.impl.finding (code, level, '%s', [who ': ' sprintf(format, varargin{:})]);
  end
end
