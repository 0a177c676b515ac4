% FOUND = CHECK_ARRAYS (SIM)  classes, lengths and values of what will be handed to the module
function found = check_arrays (sim)
  found = qn.impl.finding ();
  m = numel (sim.model.w);
  k = numel (sim.time);
  expect ('times', isa (sim.time, 'double') && k > 1 && all (diff (sim.time) > 0), ...
          'the times must be doubles that ascend; make the set-up anew with qn.simulation');
  numbers = isa (sim.saved, 'double') && all (sim.saved >= 1 & sim.saved <= k & sim.saved == fix (sim.saved));
  expect ('saved', numbers && all (diff (sim.saved) > 0), ...
          '"saved" must be ascending numbers of time points from 1 to %d', k);
  expect ('loads', isa (sim.loads, 'double') && isequal (size (sim.loads), [size(sim.shapes, 2), k]) && size (sim.shapes, 1) == m, ...
          'there must be one row of %d loads for each of the %d shapes of %d modal values', k, size (sim.shapes, 2), m);
  expect ('load_values', all (isfinite (sim.loads(:))) && isreal (sim.loads) && all (isfinite (sim.shapes(:))), ...
          'the loads must be finite and real');
  k = sim.model.stiffness;
  c = sim.model.damping;
  expect ('model', fits (k, m) && fits (c, m), ...
          'the model must have a modal stiffness and damping of %d values or %d x %d, got %s and %s', m, m, m, ...
          mat2str (size (k)), mat2str (size (c)));
  expect ('stiffness', isreal (k) && all (isfinite (k(:))), 'the modal stiffnesses must be finite');
  expect ('damping', isreal (c) && all (isfinite (c(:))), 'the modal dampings must be finite');
  if qn.impl.runs_up (sim)
    expect ('speed', turns (sim.speed, sim.model, m), ...
            'a run-up needs [times; speeds] that ascend over all of the run, and the modal matrices of qn.modal with "G"');
  end
  names = {'u', 'v', 'a'};
  for j = 1:3
    x = sim.start.(names{j});
    expect ('initial', isa (x, 'double') && isreal (x) && numel (x) == m + sim.states && all (isfinite (x)), ...
            'the initial "%s" must be %d finite real doubles', names{j}, m + sim.states);
  end
  for j = 1:numel (sim.elements)
    e = sim.elements(j);
    expect ('rows', size (e.observe, 2) == m && isequal (size (e.observe), size (e.command)), ...
            'element %d must observe and act through rows of %d modal values', e.item, m);
    expect ('row_values', all (isfinite ([e.observe(:); e.command(:)])), 'the rows of element %d must be finite', e.item);
    if isfield (e.law.parameters, 'displacement')
      expect ('table_order', all (diff (e.law.parameters.displacement) >= 0), 'the table of element %d must ascend; sort it', e.item);
    end
  end

  function yes = turns (s, model, m)
    yes = isa (s, 'double') && isreal (s) && size (s, 1) == 2 && size (s, 2) > 1 && all (isfinite (s(:))) && all (diff (s(1, :)) > 0) && ...
          s(1, 1) <= sim.time(1) && s(1, end) >= sim.time(end) && isfield (model, 'rotation') && isstruct (model.rotation) && ...
          all (isfield (model.rotation, {'G', 'K', 'damping'}));
    if ~yes, return, end
    r = model.rotation;
    whole = @(x) isa (x, 'double') && isreal (x) && isequal (size (x), [m m]) && all (isfinite (x(:)));
    yes = whole (r.G) && (isempty (r.K) || whole (r.K)) && isequal (r.damping, model.damping) && ...
          (~qn.impl.circulates (r) || whole (r.N)) && (~qn.impl.by_speed (r) || tabled (r.table, m));
  end

  function yes = tabled (t, m)
    pages = @(x) isa (x, 'double') && isreal (x) && isequal (size (x), [m m numel(t.speed)]) && all (isfinite (x(:)));
    yes = all (isfield (t, {'speed', 'K', 'C'})) && pages (t.K) && pages (t.C) && all (diff (t.speed) > 0);
  end

  function yes = fits (x, m)
    yes = isequal (size (x), [m 1]) || isequal (size (x), [m m]);
  end

  function expect (code, good, varargin)
    if ~good, found(end + 1) = qn.impl.finding (code, 'error', varargin{:}); end
  end
end
