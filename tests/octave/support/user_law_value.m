% X = USER_LAW_VALUE (SORT)  a value for a parameter of this sort of a law of the user's: a spring and a damper
function x = user_law_value (sort_of)
  switch sort_of
    case 'file', x = fullfile (project_folder (), 'tests', 'octave', 'support', 'spring_law.c');
    case 'function', x = @(x, v, s, t) 30 * x + 0.2 * v;
    case 'whole', x = 0;
    case 'count', x = 1;
    case 'text', x = '';
  end
end
