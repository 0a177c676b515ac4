% TICKS (ACROSS, UP)  places of the ticks on logarithmic axes, with plain numbers beside them
function ticks (across, up)
  names = @(x) arrayfun (@(v) sprintf ('%g', v), x, 'uniformoutput', false);
  set (gca (), 'xtick', across, 'xticklabel', names (across), 'xminortick', 'off', 'xminorgrid', 'off');
  set (gca (), 'ytick', up, 'yticklabel', names (up), 'yminortick', 'off', 'yminorgrid', 'off');
end
