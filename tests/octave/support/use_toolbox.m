% USE_TOOLBOX ()  puts the toolbox on the path: before the classes of the tests, after the module
%
% Call it first in a suite, before any object of these classes exists.
function use_toolbox ()
  module = fileparts (which ('quarn'));
  root = fileparts (fileparts (fileparts (fileparts (mfilename ('fullpath')))));
  addpath (fullfile (root, 'toolbox'));
  addpath (module);
end
