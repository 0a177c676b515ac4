% [K, C, DK, DC] = BEARINGS_AT (TABLE, SPEED, WHO)  stiffness and damping of a table by speed at one speed, and their slopes over it
%
% Linear between the speeds of the table; with WHO a speed outside them is refused, without it the last segment goes on.
function [k, c, dk, dc] = bearings_at (table, speed, who)
  [k, c, dk, dc] = deal (0);
  if isempty (table), return, end
  if nargin > 2, qn.impl.within_table (who, table, speed); end
  at = min (max (1, sum (table.speed <= speed)), numel (table.speed) - 1);
  step = table.speed(at + 1) - table.speed(at);
  part = (speed - table.speed(at)) / step;
  k = (1 - part) * table.K(:, :, at) + part * table.K(:, :, at + 1);
  c = (1 - part) * table.C(:, :, at) + part * table.C(:, :, at + 1);
  dk = (table.K(:, :, at + 1) - table.K(:, :, at)) / step;
  dc = (table.C(:, :, at + 1) - table.C(:, :, at)) / step;
end
