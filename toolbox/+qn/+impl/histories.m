% HISTORIES (HEADING, T, Y, WHAT, UNIT, NAMES)  the rows of Y over the times T [s] in the current axes, with prefixes of their units
function histories (heading, t, y, what, unit, names)
  [factor, unit] = qn.impl.prefixed (y(:), unit);
  [by, seconds] = qn.impl.prefixed (t, 's');
  k = qn.impl.thinned (numel (t), 6000);
  for j = 1:size (y, 1)
    plot (by * t(k), factor * y(j, k), '-', 'color', qn.impl.colours (j), 'linewidth', qn.impl.width ());
    hold on;
  end
  hold off;
  set (gca (), 'xlim', by * t([1 end]));
  qn.impl.style (heading, sprintf ('Time [%s]', seconds), sprintf ('%s [%s]', what, unit), names);
end
