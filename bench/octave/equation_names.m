% [NAMES, PROGRAMS] = EQUATION_NAMES (RECORDS)  the differential equations, and the programs that solved them
function [names, programs] = equation_names (records)
  t = select (records, 'equations');
  names = unique ({t.variant}, 'stable');
  programs = unique ({t.program}, 'stable');
end
