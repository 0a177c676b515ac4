% FOLDER = COMPILE_MEX (NAMES, ...)  compiles C files of this folder as MEX functions into a new folder and puts it on the path
%
% Further arguments are options of the compiler.
function folder = compile_mex (names, varargin)
  folder = tempname ();
  mkdir (folder);
  here = fileparts (mfilename ('fullpath'));
  for k = 1:numel (names)
    mkoctfile ('--mex', varargin{:}, '-o', fullfile (folder, [names{k} '.mex']), fullfile (here, [names{k} '.c']));
  end
  addpath (folder);
end
