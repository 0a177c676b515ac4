% F = PACK_RUN (RES)  a result in a form that is stored: plain data, without what can be made again
%
% Times are made again from the step, handles' values from the laws; of the loads the columns stay that are still needed: those to come
% and those of the results, all of them where that is little. Functions are left out.
function f = pack_run (res)
  sim = res.sim;
  f = rmfield (res, {'sim', 'final'});
  f.format = qn.impl.files.run_format ();
  fresh = qn.impl.values (sim, sim.step);
  f.final = packed_state (sim, res.final, fresh);
  f.sim = rmfield (sim, {'time', 'loads', 'start', 'options'});
  f.sim.steps = numel (sim.time) - 1;
  f.sim.start = packed_state (sim, sim.start, fresh);
  columns = 1:numel (sim.time);
  if numel (sim.loads) > max (1e5, numel (res.q)), columns = unique ([sim.saved, res.final.column:numel(sim.time)]); end
  f.sim.load_values = sim.loads(:, columns);
  f.sim.load_columns = zeros (1, 0);
  if numel (columns) < numel (sim.time), f.sim.load_columns = columns; end
end

% What the elements remember: their arrays, and the places of "opt" that are not as they were made.
function s = packed_state (sim, s, fresh)
  memory = cell (1, numel (sim.elements));
  for k = 1:numel (memory)
    e = s.values{2 + k, 2};
    at = find (e.opt(:) ~= fresh{2 + k, 2}.opt(:)).';
    memory{k} = struct ('unl', e.unl, 'vnl', e.vnl, 'snl', e.snl, 'at', at, 'opt', e.opt(at));
  end
  s = rmfield (s, 'values');
  s.memory = memory;
end
