% Y = SWEEP_TROUBLE (P, FOLDER)  a case of a sweep: case 2 raises an error and case 3 ends its process, until FOLDER/mended exists
function y = sweep_trouble (p, folder)
  if ~exist (fullfile (folder, 'mended'), 'file')
    if p == 2, error ('sweep:trouble', 'nothing for case %d', p); end
    if p == 3, kill (getpid (), 9); end
  end
  y = 10 * p;
end
