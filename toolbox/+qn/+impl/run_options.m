% O = RUN_OPTIONS (WHO, ARGS, FILE)  options of qn.run and qn.resume; FILE is where to save if nothing else is said ('')
function o = run_options (who, args, file)
  if nargin < 3, file = ''; end
  o = qn.impl.options (who, struct ('progress', true, 'piece', [], 'save', file, 'interval', 30, 'stop', [], 'check', true), args);
  if ~isempty (o.piece), o.piece = qn.impl.count (who, 'piece', o.piece); end
  o.interval = qn.impl.scalar (who, 'interval', o.interval, 0);
  o.progress = qn.impl.flag (who, 'progress', o.progress);
  o.check = qn.impl.flag (who, 'check', o.check);
  if ~isempty (o.save) && ~ischar (o.save)
    error ('qn:input', '%s: "save" is the name of a file, got %s of class %s', who, mat2str (size (o.save)), class (o.save));
  end
  if ~isempty (o.stop) && ~isa (o.stop, 'function_handle')
    error ('qn:input', '%s: "stop" is a function of the results so far, such as @(r) r.time_end > 1, got class %s', who, class (o.stop));
  end
end
