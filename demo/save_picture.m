% SAVE_PICTURE (FIG, FILE, WIDTH, HEIGHT)  writes a PNG of that many pixels and closes the figure
function save_picture (fig, file, width, height)
  dpi = 120;
  set (fig, 'paperunits', 'inches', 'papersize', [width height] / dpi, 'paperposition', [0 0 width height] / dpi);
  print (fig, file, '-dpng', sprintf ('-r%d', dpi));
  close (fig);
end
