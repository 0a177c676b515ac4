% L = FUNCTION_LAW ()  a law that is a function of the host's language; the fields are those of qn.impl.law_list
function l = function_law ()
  parameters = {'call', '<required>', 'function'
                'states', 0, 'whole'
                'rows', 1, 'count'};
  l = struct ('kind', 'function', 'keyword', 'User', 'parameters', {parameters}, 'pack', @pack, 'unpack', @unpack, 'words', @words, ...
              'stiffest', @stiffest, 'viscous', @viscous, 'traits', @(p) qn.impl.user.traits (p), 'extra', @extra, ...
              'unsaved', 'is a function, which no file can hold: leave out "save", or write the law in C (qn.law, ''compiled'')');
end

function [opt, own] = pack (p, step)
  if isempty (step), step = 0; end
  opt = [qn.impl.keyword('User'); 0; step];
  own = zeros (0, 1);
end

function e = extra (e, p)
  e.call = p.call;
end

function p = unpack (opt, iopt, e)
  p = [];
  if isfield (e, 'call'), p = struct ('call', e.call, 'states', iopt(4), 'rows', iopt(3)); end
end

function text = words (p)
  text = sprintf ('function %s, %d rows, %d states', func2str (p.call), p.rows, p.states);
end

function k = stiffest (p, x, state)
  k = qn.impl.user.slope (qn.impl.user.of (p, 'function'), x, state, 'x');
end

function c = viscous (p, x, f)
  c = qn.impl.user.slope (qn.impl.user.of (p, 'function'), x, [], 'v');
end
