% Y = SWEEP_LOGGED (P, FOLDER)  a case of a sweep that takes a while and leaves a file in FOLDER for each time that it ended
function y = sweep_logged (p, folder)
  pause (0.4);
  y = p ^ 2;
  fclose (fopen (fullfile (folder, sprintf ('ran_%d_%s', p, strrep (num2str (now (), 20), '.', '_'))), 'w'));
end
