% Runs every example of the toolbox and writes docs/gallery.md with their pictures into docs/images (quarn must be on the path).
%
%   octave-cli --no-history -qf --path MODULE_DIR --path docs/figures --eval make_gallery
function make_gallery ()
  docs = fileparts (fileparts (mfilename ('fullpath')));
  toolbox = fullfile (fileparts (docs), 'toolbox');
  addpath (toolbox);
  addpath (fileparts (which ('quarn')));
  addpath (fullfile (toolbox, 'examples'));
  order = {'frame_stop', 'pipe_supports', 'contact_modes', 'rotor_rub', 'rub_stator', 'run_up', 'oil_whirl', 'squeeze_film', 'bladed_disc', ...
           'iwan_joint', 'coulomb_release', 'dahl_loop', 'duffing_backbone', 'isolator', 'beam_shock', 'shock_spectrum', 'self_centring'};
  files = dir (fullfile (toolbox, 'examples', 'example_*.m'));
  missing = setxor (strcat ('example_', order, '.m'), {files.name});
  if ~isempty (missing), error ('no place in the gallery for %s', strjoin (missing, ', ')); end

  text = {'# Gallery', '', ...
          'What quarn computes, in stories with a known answer. Each example is one file of `toolbox/examples`. In Octave', ...
          'or MATLAB, started in the clone, `addpath (''toolbox''); install_quarn (); addpath (''toolbox/examples'');` puts', ...
          'them on the path; then `example_frame_stop` and the like simulate, compare with their reference, print one line a', ...
          'check and draw the picture. Differences are relative to the greatest value of the reference; why so much is allowed stands', ...
          'in each file under "Checked". The tests run all of them. This page is made by', '`docs/figures/make_gallery.m`.', ''};
  for k = 1:numel (order)
    name = ['example_' order{k}];
    r = feval (name, fullfile (docs, 'images'));
    if ~r.ok, error ('%s misses its reference', name); end
    fprintf ('%s\n', name);
    text = [text, page(fileread (fullfile (toolbox, 'examples', [name '.m'])), name, r)];
  end
  id = fopen (fullfile (docs, 'gallery.md'), 'w');
  fprintf (id, '%s\n', text{1:end - 1});
  fclose (id);
end

% Heading, picture, story, reference, and what was seen, from the comment at the head of the example and its result.
function lines = page (code, name, r)
  heading = regexp (code, '^% \S+  ([^\n]*)', 'tokens', 'once');
  lines = {['## ' heading{1}], '', sprintf('![%s](images/%s.png)', heading{1}, name), '', section(code, 'Story'), '', ...
           '*Reference.*', section(code, 'Reference'), '', '| compared | difference | allowed |', '|---|---|---|'};
  for c = r.checks.'
    seen = sprintf ('%.2g %%', 100 * c.error);
    if c.error < 1e-8, seen = 'rounding'; end
    lines{end + 1} = sprintf ('| %s | %s | %.2g %% |', c.text, seen, 100 * c.tolerance);
  end
  lines = [lines, {'', sprintf('Source: [`%s.m`](../toolbox/examples/%s.m)', name, name), ''}];
end

function text = section (code, heading)
  found = regexp (code, ['\n% ' heading '\n(.*?)\n%\n'], 'tokens', 'once');
  text = regexprep (found{1}, '(^|\n)%   ', '$1');
end
