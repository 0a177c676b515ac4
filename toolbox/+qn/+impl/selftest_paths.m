% CHECKS = SELFTEST_PATHS ()  the checks of qn.selftest on products, threads, callbacks and pictures
function checks = selftest_paths ()
  checks = {'product', @product; 'threads', @threads; 'callback', @callback; 'error texts', @error_texts; 'picture', @picture};
end

function [good, text] = product ()
  n = 20000;
  a = band (n);
  x = cos ((1:n).');
  y = zeros (n, 1);
  quarn ('tbbp', packed (a), x, y);
  wanted = a.' * x;
  difference = max (abs (y - wanted)) / max (abs (wanted));
  good = all (abs (y - wanted) <= 1e-13 * max (abs (wanted)));
  text = sprintf ('%d lines, relative difference to the host''s own product %.1e (below 1e-13)', n, difference);
end

% Blocks of 1000 lines stay on one thread when they come alone; together, more than 100,000 entries, they are spread over up to 8.
function [good, text] = threads ()
  n = 40000;
  size_of_block = 1000;
  [i, j, value] = find (band (n));
  inside = floor ((i - 1) / size_of_block) == floor ((j - 1) / size_of_block);
  a = sparse (i(inside), j(inside), value(inside), n, n);
  x = cos ((1:n).');
  together = zeros (n, 1);
  quarn ('tbbp', packed (a), x, together);
  alone = [];
  for first = 1:size_of_block:n
    rows = first:first + size_of_block - 1;
    part = zeros (size_of_block, 1);
    quarn ('tbbp', packed (a(rows, rows)), x(rows), part);
    alone = [alone; part];
  end
  good = isequal (together, alone) && any (together);
  text = sprintf ('%d of %d values with the same bits on one thread and on several%s', sum (together == alone), n, threads_here ());
end

function text = threads_here ()
  text = '';
  id = fopen ('/proc/self/status');
  if id < 0, return, end
  line = fgetl (id);
  while ischar (line)
    if strncmp (line, 'Threads:', 8), text = sprintf ('; %d threads in this process', sscanf (line(9:end), '%d')); end
    line = fgetl (id);
  end
  fclose (id);
end

% A law that is a function of the host; 'residual' calls it.
function [good, text] = callback ()
  r = sprung (@(e, r, model, u, v, a, opt, extra) extra * e.unl .^ 3);
  good = isequal (r, [80; -80]);
  text = sprintf ('a function as force law gave %g and %g, by hand 80 and -80', r);
end

% What such a function raises arrives as it was raised.
function [good, text] = error_texts ()
  id = 'no error';
  try
    sprung (@(varargin) error ('qn:thrown', 'thrown on purpose'));
  catch err
    id = err.identifier;
  end
  good = strcmp (id, 'qn:thrown');
  text = sprintf ('an error in a callback arrived with the identifier %s', id);
end

function r = sprung (law)
  c = struct ('pr', [1; -1], 'ir', int32 ([0; 1]), 'jc', int32 ([0; 2]), 'dims', [1 2], 'trans', 1);
  e = struct ('c', c, 'b', c, 'unl', zeros (1, 1), 'StoreFNL', 0, 'FInd', int32 (0), 'Fu', law);
  r = zeros (2, 1);
  quarn ('residual', r, struct ('K', {cell(1, 3)}, 'NL', {{'spring', [], e}}), [3; 1], [0; 0], [], [], 10);
end

function [good, text] = picture ()
  file = [tempname() '.png'];
  away = onCleanup (@() remove (file));
  state = warning ('off', 'Octave:gnuplot-graphics');
  back = onCleanup (@() warning (state));
  window = figure ('visible', 'off');
  closed = onCleanup (@() close (window));
  plot (0:0.1:6, sin (0:0.1:6));
  print (window, '-dpng', file);
  id = fopen (file);
  if id < 0, error ('no picture was written; Octave without a screen needs gnuplot, ghostscript and fonts'); end
  head = fread (id, 8).';
  fseek (id, 0, 'eof');
  bytes = ftell (id);
  fclose (id);
  good = isequal (head, [137 80 78 71 13 10 26 10]) && bytes > 1000;
  text = sprintf ('a curve as PNG, %d bytes', bytes);
end

function remove (file)
  if exist (file, 'file'), delete (file); end
end

% Five diagonals, not symmetric.
function a = band (n)
  a = spdiags (sin ((1:n).' * (1:5)), [-700 -3 0 1 450], n, n);
end

function s = packed (a)
  [i, j, value] = find (a);
  s = struct ('pr', value, 'ir', int32 (i - 1), 'jc', int32 (cumsum ([0; accumarray(j, 1, [size(a, 2) 1])])), 'dims', size (a));
end
