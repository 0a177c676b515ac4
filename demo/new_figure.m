% FIG = NEW_FIGURE ()  hidden figure; Octave draws it with gnuplot, which needs no screen
function fig = new_figure ()
  if exist ('OCTAVE_VERSION', 'builtin')
    warning ('off', 'Octave:gnuplot-graphics');
    graphics_toolkit ('gnuplot');
  end
  fig = figure ('visible', 'off', 'color', [1 1 1]);
end
