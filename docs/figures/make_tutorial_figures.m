% Draws the pictures of docs/tutorial.md and docs/rotors.md by running their examples, as a reader would:
%   octave-cli --no-history -qf --path MODULE_DIR --path toolbox --path docs/figures --eval make_tutorial_figures
function make_tutorial_figures ()
  docs = fileparts (fileparts (mfilename ('fullpath')));
  addpath (fullfile (docs, '..', 'tests', 'octave', 'support', 'documents'));
  blocks = [document_blocks(fullfile (docs, 'tutorial.md'), 'matlab'), document_blocks(fullfile (docs, 'rotors.md'), 'matlab')];
  folder = tempname ();
  mkdir (folder);
  back = cd (folder);
  undo = onCleanup (@() cd (back));
  for k = 1:numel (blocks), run_block (blocks(k).code); end
  pictures = [dir('tutorial_*.png'); dir('rotors_*.png')];
  for k = 1:numel (pictures), copyfile (pictures(k).name, fullfile (docs, 'images')); end
  clear ('undo');
  delete (fullfile (folder, '*'));
  rmdir (folder);
end
