function tests = suite_toolbox_frame ()
  use_toolbox ();
  addpath (demo_folder ());
  tests = localfunctions ();
end

function folder = demo_folder ()
  folder = fullfile (project_folder (), 'demo');
end

% The script of the toolbox beside the raw calls of the demo: the same run, in 25 lines.
function test_the_frame_with_its_stop_takes_25_lines_and_gives_the_results_of_the_raw_calls ()
  script = fullfile (demo_folder (), 'frame_with_toolbox.m');
  lines = strtrim (strsplit (fileread (script), sprintf ('\n')));
  code = lines(~cellfun (@(l) isempty (l) || l(1) == '%', lines));
  if numel (code) > 25, error ('the script has %d lines', numel (code)); end
  folder = tempname ();
  mkdir (folder);
  before = getenv ('QUARN_DEMO_OUT');
  setenv ('QUARN_DEMO_OUT', folder);
  [text, res, model, frame, contacts, energy] = in_a_scope_of_its_own (script);
  setenv ('QUARN_DEMO_OUT', before);
  if ~exist (fullfile (folder, 'frame.png'), 'file'), error ('no picture'); end
  delete (fullfile (folder, 'frame.png'));
  rmdir (folder);

  t = res.time;
  shock = 8 * sin (pi * t / 0.05) .* (t < 0.05);
  modes = struct ('w', model.w, 'zeta', 0.02, 'load', model.shapes.' * (frame.m * frame.push));
  raw = {nonlinear_element(model.shapes(frame.roof, :), 0, 'Table', [0, 0.015, 0.017, 0.030], [0, 0, 20e3, 1.32e6]), ...
         nonlinear_element(model.shapes(frame.floor, :), 1, 'Power', 5e9, 3)};
  run = integrate_modes (modes, t, shock, raw);
  expect_equal (max (max (abs (res.q - run.q))) < 1e-7 * max (max (abs (run.q))), true);
  expect_equal (max (abs (res.force(1, :) - run.f(1, :))) < 1e-5 * max (run.f(1, :)), true);
  if isempty (contacts) || max ([contacts.peak]) < 1e4, error ('no contact'); end
  if max (abs (energy.residual)) > 0.02 * max (energy.work), error ('the energy does not balance'); end
end

function [text, res, model, frame, contacts, energy] = in_a_scope_of_its_own (script)
  text = evalc ('run (script)');
end
