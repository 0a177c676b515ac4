% W = WIDTH ()  line width of curves; gnuplot draws in finer points than other toolkits
function w = width ()
  w = 1.5;
  if exist ('OCTAVE_VERSION', 'builtin') && strcmp (get (gcf (), '__graphics_toolkit__'), 'gnuplot'), w = 3; end
end
