% Y = SWEEP_LOGGED (P, FOLDER, FREE)  a case of a sweep that takes a while and leaves a file in FOLDER for each time that it ended; with
% FREE, cases after that number first wait for the file go_on of FOLDER, a minute at most; once it is there no case takes a while
function y = sweep_logged (p, folder, free)
  if nargin > 2 && p > free
    waited = tic ();
    while ~exist (fullfile (folder, 'go_on'), 'file') && toc (waited) < 60, pause (0.05); end
  end
  if nargin < 3 || ~exist (fullfile (folder, 'go_on'), 'file'), pause (0.4); end
  y = p ^ 2;
  fclose (fopen (fullfile (folder, sprintf ('ran_%d_%s', p, strrep (num2str (now (), 20), '.', '_'))), 'w'));
end
