% LABEL_LINES (H, NAMES)  writes the names of the lines H right of the axes, in their colours and in the order in which the lines end
%
% A legend with long names would cover the lines.
function label_lines (h, names)
  axis tight
  x = xlim ();
  axis auto
  xlim (x);
  limits = log10 (ylim ());
  ends = zeros (1, numel (h));
  for k = 1:numel (h)
    y = get (h(k), 'ydata');
    ends(k) = (log10 (y(end)) - limits(1)) / diff (limits);
  end
  [ends, order] = sort (ends);
  step = 0.065;
  for k = 2:numel (ends), ends(k) = max (ends(k), ends(k - 1) + step); end
  ends = ends - max (0, ends(end) - 1);
  for k = numel (ends) - 1:-1:1, ends(k) = min (ends(k), ends(k + 1) - step); end
  set (gca, 'position', [0.1 0.13 0.6 0.78]);
  for k = 1:numel (ends)
    text (1.03, ends(k), names{order(k)}, 'units', 'normalized', 'color', get (h(order(k)), 'color'), 'fontsize', 10);
  end
end
