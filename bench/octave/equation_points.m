% [ERRORS, SECONDS] = EQUATION_POINTS (RECORDS, NAME, PROGRAM)  what a program measured on an equation
function [errors, seconds] = equation_points (records, name, program)
  errors = [];
  seconds = [];
  for k = 1:numel (records)
    r = records{k};
    if strcmp (r.group, 'equations') && strcmp (r.variant, name) && strcmp (r.program, program) && ~isempty (r.error)
      errors(end + 1) = r.error;
      seconds(end + 1) = r.seconds;
    end
  end
end
