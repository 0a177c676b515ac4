% USE_TOOLBOX ()         puts the toolbox on the path: before the classes of the tests, after the module
% USE_TOOLBOX ('quiet')  the same for a suite whose set-ups are coarse on purpose: what qn.check finds in them is not printed
%
% Call it first in a suite, before any object of these classes exists.
function use_toolbox (how)
  module = fileparts (which ('quarn'));
  root = fileparts (fileparts (fileparts (fileparts (mfilename ('fullpath')))));
  addpath (fullfile (root, 'toolbox'));
  addpath (module);
  state = 'on';
  if nargin > 0, state = 'off'; end
  for code = qn.impl.finding ('codes'), warning (state, ['qn:check:' code{1}]); end
end
