% T = TRAITS (LAW, ROWS)  what an element with this law needs; ROWS is the number of its observations
%
%   rows    observations that it takes; 0: any number, each a force of its own
%   forces  number of forces
%   width   values that the module observes, and stores as forces
%   states  values that it keeps in the displacement vector, behind the modes
%   memory  its force depends on the past
function t = traits (law, rows)
  t = struct ('rows', 1, 'forces', 1, 'width', 1, 'states', 0, 'memory', true);
  switch law.kind
    case {'power', 'exponential', 'table'}
      t.rows = 0;
      t.forces = rows;
      t.width = rows;
      t.memory = false;
    case 'maxwell'
      t.width = numel (law.parameters.springs) + 1;
    case {'dahl', 'stickslip'}
      t.width = 2;
      t.states = 1;
    case 'clima2'
      t.rows = 3;
      t.forces = 3;
      t.width = 5;
      t.states = 2;
  end
end
