% O = RUN_OPTIONS (WHO, ARGS)  options of qn.run and qn.resume
function o = run_options (who, args)
  o = qn.impl.options (who, struct ('progress', true, 'piece', [], 'save', '', 'interval', 30, 'stop', []), args);
  if ~isempty (o.piece), qn.impl.scalar (who, 'piece', o.piece, 1); end
  qn.impl.scalar (who, 'interval', o.interval, 0);
end
