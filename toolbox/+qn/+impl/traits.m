% T = TRAITS (LAW, ROWS)  what an element with this law needs; ROWS is the number of its observations
%
%   rows    observations that it takes; 0: any number, each a force of its own
%   forces  number of forces
%   width   values that the module observes, and stores as forces
%   states  values that it keeps in the displacement vector, after the modes
%   inner   values that it keeps in its own arrays
%   pages   states of motion that its arrays hold: the one now, the one at the start of the step, the one at the last correction
%   rates   its force depends on the velocity, and that is all that it needs to know of it
%   record  place or places in "opt" where the module notes the most that the law has met, 0: none
%   group   rows of one evaluation, of a law of the user's that is evaluated for groups of rows; else 0
%   memory  its force depends on the past
function t = traits (law, rows)
  t = struct ('rows', 0, 'forces', rows, 'width', rows, 'states', 0, 'inner', 0, 'pages', 1, 'rates', false, 'record', 0, 'group', 0, ...
              'memory', false);
  l = qn.impl.law_of (law.kind);
  if isempty (l.traits), return, end
  own = l.traits (law.parameters);
  for name = fieldnames (own).', t.(name{1}) = own.(name{1}); end
end
