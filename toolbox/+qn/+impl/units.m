% U = UNITS ()  units of the fields of a result
function u = units ()
  u = struct ('time', 's', 'q', 'm sqrt(kg)', 'force', 'N', 'displacement', 'm', 'velocity', 'm/s', 'acceleration', 'm/s^2', 'energy', 'J');
end
