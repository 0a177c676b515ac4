% FOLDER = COMPILE_MEX (NAMES)  compiles C files of this folder as MEX functions into a new folder and puts it on the path
function folder = compile_mex (names)
  folder = tempname ();
  mkdir (folder);
  here = fileparts (mfilename ('fullpath'));
  for k = 1:numel (names)
    mkoctfile ('--mex', '-o', fullfile (folder, [names{k} '.mex']), fullfile (here, [names{k} '.c']));
  end
  addpath (folder);
end
