% WRITE_RESULTS (FOLDER, ...)  results.mat with everything at full resolution, response.csv with every 20th step
function write_results (folder, t, ag, x, y, f, x_free, w, contacts)
  results = struct ('time_s', t, 'base_acceleration_m_s2', ag, 'roof_displacement_m', x, 'brace_displacement_m', y, ...
                    'stop_force_N', f(1, :), 'brace_force_N', f(2, :), 'roof_displacement_contact_free_m', x_free, ...
                    'frequencies_Hz', w / (2 * pi), 'contacts', contacts);
  save (fullfile (folder, 'results.mat'), '-struct', 'results', '-v7');

  names = {'time_s', 'base_acceleration_m_s2', 'roof_displacement_m', 'brace_displacement_m', 'stop_force_N', 'brace_force_N'};
  file = fopen (fullfile (folder, 'response.csv'), 'w');
  fprintf (file, '%s\n', strjoin (names, ','));
  kept = 1:20:numel (t);
  table = [t; ag; x; y; f(1:2, :)];
  fprintf (file, '%.7g,%.9g,%.9g,%.9g,%.9g,%.9g\n', table(:, kept));
  fclose (file);
end
