% N = NOTE (GROUP, VARIANT, SIZE, PROGRAM, SECONDS, UNITS, DIFFERENCE, TOLERANCE)  a result, as the report reads it
function n = note (group, variant, size, program, seconds, units, difference, tolerance)
  n = struct ('group', group, 'variant', variant, 'size', size, 'program', program, 'seconds', seconds, 'units', units, ...
              'difference', difference, 'tolerance', tolerance);
  fprintf ('%-11s %-22s %8d  %-26s %12.1f ns\n', group, variant, size, program, 1e9 * seconds);
end
