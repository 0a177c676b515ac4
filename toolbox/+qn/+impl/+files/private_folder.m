% FOLDER = PRIVATE_FOLDER ()         a new folder among the temporary ones, which nobody else can read or write
% FOLDER = PRIVATE_FOLDER (PARENT)   in another one; WHY says why it could not be made, FOLDER is '' then
function [folder, why] = private_folder (parent)
  [temporary, random] = fileparts (tempname ());
  name = ['quarn-' random];
  if nargin < 1, parent = temporary; end
  if exist ('OCTAVE_VERSION', 'builtin')
    mask = umask (77);
    back = onCleanup (@() umask (mask));
  end
  [made, why] = mkdir (parent, name);
  folder = '';
  if made && isempty (why), folder = fullfile (parent, name); end
  if nargin < 1 && isempty (folder), error ('qn:input', 'no temporary folder can be made in %s: %s', parent, why); end
end
