% WITHIN_TABLE (WHO, TABLE, SPEEDS)  refuses speeds for which a table by speed has no values ([]: no table)
function within_table (who, table, speeds)
  if isempty (table), return, end
  [low, high] = deal (min (speeds(:)), max (speeds(:)));
  slack = 1e-9 * max (abs (table.speed));
  if low >= table.speed(1) - slack && high <= table.speed(end) + slack, return, end
  asked = sprintf ('%.6g', low);
  if high > low, asked = sprintf ('%.6g to %.6g', low, high); end
  error ('qn:input', '%s: what depends on the speed is known from %.6g to %.6g rad/s, and asked for at %s rad/s', who, ...
         table.speed([1 end]), asked);
end
