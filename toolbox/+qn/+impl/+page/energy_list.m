% HTML = ENERGY_LIST (RES)  where the energy is at the end of the run, and what does not add up
function html = energy_list (res)
  try
    e = qn.energies (res);
    words = {'kinetic', 'kinetic, of the modes'; 'strain', 'strain, of the modes'; 'stored', 'stored in elements'
             'damped', 'taken by modal damping'; 'dissipated', 'dissipated in elements'
             'exchanged', 'taken by elements that act elsewhere'; 'circulatory', 'taken by stiffness that is skew or changes'
             'gyroscopic', 'taken by the gyroscopic matrix'; 'work', 'work of the loads'; 'residual', 'does not add up'};
    cells = cell (0, 3);
    for k = 1:size (words, 1)
      x = e.(words{k, 1});
      if ~any (x) && ~strcmp (words{k, 1}, 'residual'), continue, end
      [unused, top] = max (abs (x));
      cells(end + 1, :) = {words{k, 2}, x(end), x(top)};
    end
    scale = max (abs ([e.kinetic + e.strain + e.stored, e.work]));
    share = 0;
    if scale > 0, share = 100 * max (abs (e.residual)) / scale; end
    html = sprintf ('%s\n<p>What does not add up is at most %.2g %% of the greatest energy.</p>', ...
                    qn.impl.page.grid_of ({'Energy', 'at the end [J]', 'greatest amount [J]'}, cells), share);
  catch err
    html = qn.impl.page.unknown (err);
  end
  html = sprintf ('<h2>Energy balance</h2>\n%s', html);
end
