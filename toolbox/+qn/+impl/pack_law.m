% [OPT, OWN] = PACK_LAW (LAW, STEP)  the module's real parameters of a law, and its own integer options behind the common five
function [opt, own] = pack_law (law, step)
  p = law.parameters;
  own = zeros (0, 1);
  record = zeros (3, 1);
  switch law.kind
    case 'power'
      opt = [qn.impl.keyword('Power'); p.stiffness; p.exponent];
    case 'exponential'
      opt = [qn.impl.keyword('Expon'); p.scale; p.base];
    case 'table'
      opt = [qn.impl.keyword('Table'); record; p.displacement; p.force];
      own = [4; 1; numel(p.displacement); 1];
    case 'dahl'
      % The slip force is the product of two parameters; the second one stays 1.
      opt = [qn.impl.keyword('DahlC'); 0; step; p.stiffness; p.exponent; p.slip; 1];
    case 'stickslip'
      opt = [qn.impl.keyword('sts'); 0; step; p.stiffness; p.contact; p.slip; p.ground];
    case 'clima2'
      opt = [qn.impl.keyword('Clima2'); 0; step; p.stiffness; p.exponent; p.friction; p.offset; record; p.displacement; p.normal; ...
             p.growth];
      own = [10; 7; numel(p.displacement); 2];
    case 'maxwell'
      % One state a branch, the displacement s of the joint between spring and damper: s' = (k/c) (x - s). Force: sum of
      % k (x - s), and the parallel spring. One sub-step a step: the module's own states then follow the current input.
      m = numel (p.springs);
      q = m + 1;
      rate = p.springs ./ p.dampers;
      weights = zeros ((q + m) * q, 1);
      weights(1:q) = [p.stiffness + sum(p.springs); -p.springs];
      input = zeros (q * m, 1);
      input(1:m) = rate;
      opt = [qn.impl.keyword('Maxw'); 0; step; 1; 0; weights; zeros((q + m) * q, 1); input; reshape(diag (-rate), [], 1); zeros(q, 1)];
  end
end
