% HTML = PICTURES (RES, O)  displacements, spectrum, forces and energies as pictures inside the page
function html = pictures (res, o)
  html = '<h2>Pictures</h2>';
  if numel (res.time) < 2
    html = sprintf ('%s\n<p>not shown: the result has %d times</p>', html, numel (res.time));
    return
  end
  html = [html, figure_of('Displacements', @() qn.plot.series (res, sparse (o.rows), o.names))];
  html = [html, figure_of(sprintf ('Amplitude spectrum, %s', o.names{1}), @() spectrum_of (res, o))];
  shown = 1:min (6, size (res.force, 1));
  if ~isempty (shown) && any (any (res.force(shown, :)))
    text = 'Forces of the elements';
    if numel (shown) < size (res.force, 1), text = sprintf ('%s, the first %d of %d', text, numel (shown), size (res.force, 1)); end
    names = arrayfun (@(k) sprintf ('force %d', k), shown, 'uniformoutput', false);
    html = [html, figure_of(text, @() qn.plot.series (res, 'force', shown, names))];
  end
  if res.complete && numel (res.time) == numel (res.sim.time), html = [html, figure_of('Energies', @() energies_of (res))]; end
end

function html = figure_of (caption, draw)
  caption = qn.impl.page.escaped (caption);
  try
    fig = qn.plot.page (900, 420);
    closed = onCleanup (@() close (fig));
    axes ('position', [0.1 0.15 0.86 0.73]);
    draw ();
    file = [tempname() '.png'];
    gone = onCleanup (@() remove (file));
    qn.plot.picture (fig, file);
    [id, why] = fopen (file, 'r');
    if id < 0, error ('qn:input', 'no picture was drawn: %s', why); end
    bytes = fread (id, [1 Inf], 'uint8=>uint8');
    fclose (id);
    html = sprintf ('\n<figure><img alt="%s" src="data:image/png;base64,%s">\n<figcaption>%s</figcaption></figure>', caption, ...
                    qn.impl.page.base64 (bytes), caption);
  catch err
    html = sprintf ('\n<p>%s</p>\n%s', caption, qn.impl.page.unknown (err));
  end
end

function remove (file)
  if exist (file, 'file'), delete (file); end
end

function spectrum_of (res, o)
  [f, x] = qn.spectrum (res.time, o.rows(1, :) * res.q);
  [factor, unit] = qn.impl.prefixed (x, 'm');
  plot (f, factor * abs (x), '-', 'color', qn.impl.colours (1), 'linewidth', qn.impl.width ());
  set (gca (), 'xlim', [0, max(last_of (f, abs (x)), f(2))]);
  qn.impl.style ('Amplitude spectrum', 'Frequency [Hz]', sprintf ('Amplitude [%s]', unit), {});
end

% Up to where the spectrum has a thousandth of its peak.
function top = last_of (f, x)
  top = f(find (x >= 1e-3 * max (x), 1, 'last'));
  if isempty (top), top = f(end); end
end

function energies_of (res)
  e = qn.energies (res);
  y = [e.kinetic + e.strain; e.stored; e.damped + e.dissipated; e.work; e.residual];
  names = {'in the modes', 'stored', 'damped', 'work of loads', 'residual'};
  qn.impl.histories ('Energies', e.time, y, 'Energy', 'J', names);
end
