% L = COMPILED_LAW ()  a law in C of the user's; the fields are those of qn.impl.law_list
function l = compiled_law ()
  parameters = {'file', '<required>', 'file'
                'parameters', zeros(0, 1), 'free list'
                'states', 0, 'whole'
                'rows', 1, 'count'
                'hash', '', 'text'};
  l = struct ('kind', 'compiled', 'keyword', 'User', 'parameters', {parameters}, 'pack', @pack, 'unpack', @unpack, 'words', @words, ...
              'stiffest', @stiffest, 'viscous', @viscous, 'traits', @(p) qn.impl.user.traits (p), 'extra', @extra, ...
              'prepare', @(who, p) qn.impl.user.prepared (who, p), 'again', @(p) qn.impl.user.unchanged (p));
end

function [opt, own] = pack (p, step)
  if isempty (step), step = 0; end
  opt = [qn.impl.keyword('User'); 0; step; p.parameters];
  own = zeros (0, 1);
end

function e = extra (e, p)
  e.library = qn.impl.user.library (p);
  e.source = p.file;
  e.hash = p.hash;
end

function p = unpack (opt, iopt, e)
  p = [];
  if ~all (isfield (e, {'library', 'source', 'hash'})), return, end
  p = struct ('file', e.source, 'parameters', opt(4:end), 'states', iopt(4), 'rows', iopt(3), 'hash', e.hash);
end

function text = words (p)
  [~, name, kind] = fileparts (p.file);
  text = sprintf ('compiled law %s%s (%s), %d rows, %d states, parameters%s', name, kind, p.hash(1:8), p.rows, p.states, ...
                  sprintf (' %g', p.parameters));
end

function k = stiffest (p, x, state)
  k = qn.impl.user.slope (qn.impl.user.of (p, 'compiled'), x, state, 'x');
end

function c = viscous (p, x, f)
  c = qn.impl.user.slope (qn.impl.user.of (p, 'compiled'), x, [], 'v');
end
