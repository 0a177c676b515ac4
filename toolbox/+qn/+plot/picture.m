% QN.PLOT.PICTURE  writes a figure to a picture file
%
% Purpose
%   The picture has the size of the page in pixels. No character in the name stands for others.
%
% Calls
%   qn.plot.picture (FIG, FILE)
%
% Input
%   FIG    from qn.plot.page
%   FILE   name of the file; its ending says the format: png, pdf, svg or eps
%
% Errors
%   qn:input  another ending, or the file cannot be written
%
% Example
%   fig = qn.plot.page ();
%   plot (0:10, (0:10) .^ 2);
%   file = [tempname() '.png'];
%   qn.plot.picture (fig, file);
%   close (fig);
%   delete (file);
%
% See also qn.plot.page
function picture (fig, file)
  if nargin > 1, file = qn.impl.chars (file); end
  if nargin < 2 || ~ischar (file)
    error ('qn:input', 'qn.plot.picture: a figure and the name of a file expected; see help qn.plot.picture');
  end
  [unused, unused2, ending] = fileparts (file);
  devices = {'.png', '-dpng'; '.pdf', '-dpdf'; '.svg', '-dsvg'; '.eps', '-depsc'};
  k = find (strcmpi (ending, devices(:, 1)));
  if isempty (k), error ('qn:input', 'qn.plot.picture: a name that ends in png, pdf, svg or eps expected, got %s', file); end
  place = get (fig, 'position');
  dpi = 120;
  set (fig, 'paperunits', 'inches', 'papersize', place(3:4) / dpi, 'paperposition', [0, 0, place(3:4) / dpi]);
  % The host's print gives names to a shell, to sprintf and to the program that draws: it gets one without such characters.
  made = [tempname() devices{k, 1}];
  away = onCleanup (@() qn.impl.files.remove_file (made));
  print (fig, made, devices{k, 2}, sprintf ('-r%d', dpi));
  id = fopen (made);
  if id < 0, error ('qn:input', 'qn.plot.picture: this host could not print %s', file); end
  bytes = fread (id, Inf, '*uint8');
  fclose (id);
  qn.impl.files.write_bytes ('qn.plot.picture', file, bytes);
end
