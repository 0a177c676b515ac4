% SAVE_PICTURE (FIG, FILE, WIDTH, HEIGHT)  writes a PNG of that many pixels and closes the figure
function save_picture (fig, file, width, height)
  set (fig, 'position', [0 0 width height]);
  qn.plot.picture (fig, file);
  close (fig);
end
