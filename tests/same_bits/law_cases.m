% LAW_CASES (ID)  every force law with random parameters and states, in two evaluations each, and the link of a rotor
function law_cases (id)
  kinds = {'sum', 'one'};
  for w = laws_of_the_module ()
    for single = [true false]
      name = sprintf ('%s law %s', kinds{1 + single}, w{1});
      for k = 1:rounds (12), one_element (id, name, random_law_element (w{1}, 7, single)); end
    end
  end
  for rows = [10 11 11 17]
    name = 'one rotor';
    if rows == 17, name = 'sum rotor'; end
    for k = 1:rounds (6)
      e = random_rotor (8, rows);
      model = fresh (struct ('K', {cell(1, 3)}, 'FNL', zeros (6, 1), 'NL', {{[], [], e}}));
      recorded_call (id, name, 0, 'residual', zeros (8, 1), model, randn (8, 1), randn (8, 1), randn (8, 1));
    end
  end
end

function one_element (id, name, e)
  out = recorded_call (id, name, 1, 'chandleset', 1003, e);
  for k = 1:2
    recorded_call (id, name, 0, 'residual', zeros (7, 1), chandle (out{1}), randn (7, 1), randn (7, 1), randn (7, 1), zeros (1, 2));
  end
  recorded_call (id, name, 1, 'chandleget', out{1});
  recorded_call (id, name, 0, 'chandleclear', out{1});
end
