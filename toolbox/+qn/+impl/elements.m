% [E, STATES, SLOTS] = ELEMENTS (MODEL, LIST, WHO)  one struct an element, with its places in the state vector and among the forces
%
%   law, observe, command   as given, banks of laws taken apart
%   item                    row of LIST that it came from
%   state                   row of the displacement vector where its memory is, 0: none
%   slot, forces            its places in the module's force store; its rows of the results' forces
function [e, states, slots] = elements (model, list, who)
  if nargin < 3, who = 'qn.simulation'; end
  m = numel (model.w);
  if ~iscell (list) || (~isempty (list) && ~any (size (list, 2) == [2 3]))
    error ('qn:input', '%s: "elements" is a cell {law, rows; ...}, got %s of class %s', who, mat2str (size (list)), class (list));
  end
  e = struct ('law', {}, 'observe', {}, 'command', {}, 'item', {}, 'state', {}, 'slot', {}, 'forces', {});
  states = 0;
  slots = 0;
  forces = 0;
  for k = 1:size (list, 1)
    laws = list{k, 1};
    if isnumeric (laws) && isstruct (list{k, 2})
      error ('qn:input', '%s: element %d has its law and its rows in the wrong order; {law, rows} is expected', who, k);
    end
    if ~isstruct (laws) || ~isfield (laws, 'kind'), error ('qn:input', '%s: element %d needs a law, from qn.law or a recipe', who, k); end
    laws = qn.impl.sound_law (sprintf ('%s: element %d', who, k), laws);
    where = sprintf ('%s: element %d: ', who, k);
    c = qn.impl.observation_rows (model, list{k, 2}, where, sprintf ('elements{%d, 2}', k));
    b = c;
    if size (list, 2) > 2 && ~isempty (list{k, 3})
      b = qn.impl.observation_rows (model, list{k, 3}, where, sprintf ('elements{%d, 3}', k));
    end
    if ~isequal (size (b), size (c))
      error ('qn:input', '%sas many rows to act through as to observe expected, got %d and %d', where, size (b, 1), size (c, 1));
    end
    for j = 1:numel (laws)
      t = qn.impl.traits (laws(j), size (c, 1));
      if t.rows > 0 && t.rows ~= size (c, 1)
        error ('qn:input', '%s: the law "%s" of element %d observes %d rows, got %d', who, laws(j).kind, k, t.rows, size (c, 1));
      end
      e(end + 1) = struct ('law', laws(j), 'observe', c, 'command', b, 'item', k, 'state', (t.states > 0) * (m + states + 1), ...
                           'slot', slots + 1, 'forces', forces + (1:t.forces));
      states = states + t.states;
      slots = slots + t.width;
      forces = forces + t.forces;
    end
  end
end
