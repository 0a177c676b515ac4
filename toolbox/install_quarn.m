% INSTALL_QUARN  puts quarn on the path and checks that it answers
%
% Purpose
%   Adds this folder and, in front of it, the folder of the compiled module to the path; then calls the module. When something is
%   missing it says what and what to do, and leaves the path as it was.
%
% Calls
%   install_quarn ()
%   install_quarn (FOLDER)
%   install_quarn (FOLDER, 'save')
%
% Input
%   FOLDER   folder of the compiled module (quarn.mex for Octave, quarn.mexa64 for MATLAB). Without it or with '' these are tried:
%            this folder, the folders on the path, and build/release/module and build/matlab in the clone that this folder is part of
%   'save'   keeps the path for later sessions, with savepath
%
% Output
%   FOLDER   folder of the compiled module that is used
%
% Errors
%   qn:install  no compiled module was found, it cannot be loaded, or it is another one; its folder cannot be on the path, or the path
%               could not be saved
%
% Example
%   install_quarn ()
%
% See also qn.selftest, quarn
function folder = install_quarn (folder, keep)
  toolbox = fileparts (mfilename ('fullpath'));
  name = ['quarn.' mexext()];
  if nargin > 0 && isa (folder, 'string'), folder = convertStringsToChars (folder); end
  if nargin < 1 || isempty (folder)
    found = find_module (toolbox, name);
  elseif ~ischar (folder)
    error ('qn:install', 'install_quarn: the name of a folder expected, got an array of class %s', class (folder));
  else
    found = absolute (folder);
    if ~has_file (found, name)
      error ('qn:install', 'install_quarn: there is no %s in the folder %s', name, folder);
    end
  end
  if nargin > 1 && ~strcmp (keep, 'save')
    error ('qn:install', 'install_quarn: the second argument is ''save'', or there is none');
  end
  for place = {toolbox, found}
    if any (place{1} == pathsep ())
      error ('qn:install', 'install_quarn: %s cannot be on the path, where %s stands between two folders: give it another name', ...
             place{1}, pathsep ());
    end
  end
  before = path ();
  addpath (toolbox);
  addpath (found);
  drop_relative ({toolbox, found});
  try
    check_answer (found, name);
  catch err
    path (before);
    error ('qn:install', '%s', err.message);
  end
  fprintf ('quarn is ready: %s\nqn.selftest tells what works on this machine.\n', fullfile (found, name));
  if nargin > 1 && savepath () ~= 0
    error ('qn:install', 'install_quarn: the path is set for this session, but savepath could not save it');
  end
  if nargout > 0
    folder = found;
  end
end

function found = find_module (toolbox, name)
  clone = fileparts (toolbox);
  folders = [{toolbox}, strsplit(path (), pathsep ()), {fullfile(clone, 'build', 'release', 'module'), fullfile(clone, 'build', 'matlab')}];
  found = folders(cellfun (@(f) has_file (f, name), folders));
  if isempty (found)
    error ('qn:install', ['install_quarn: the compiled module %s was not found in %s, on the path, or in build/release/module of a ' ...
                          'clone. Build it (Octave: scripts/build; MATLAB: buildtool mex), or name its folder: install_quarn (FOLDER)'], ...
           name, toolbox);
  end
  found = absolute (found{1});
end

function check_answer (folder, name)
  if exist (fullfile (pwd (), 'quarn.m'), 'file') && ~has_file (pwd (), name)
    error ('install_quarn: the current folder holds quarn.m, which hides the compiled module; change to another folder first');
  end
  try
    x = quarn ();
  catch err
    error ('install_quarn: %s cannot be loaded into this host: %s. Build it on this machine, for this host', fullfile (folder, name), ...
           err.message);
  end
  if ~isequal (x, 1.0001)
    error ('install_quarn: quarn () answered %s instead of 1.0001: %s is another program', disp_short (x), which ('quarn'));
  end
end

function text = disp_short (x)
  text = class (x);
  if isnumeric (x) && isscalar (x), text = sprintf ('%.4f', x); end
end

function yes = has_file (folder, name)
  yes = exist (fullfile (folder, name), 'file') > 0;
end

% Relative names would lead elsewhere after the next cd.
function folder = absolute (folder)
  [found, info] = fileattrib (folder);
  if ~found, error ('qn:install', 'install_quarn: there is no folder %s', folder); end
  folder = info.Name;
end

% The same folders under relative names, from addpath ('toolbox') say: they are on the path already, and must not be saved.
function drop_relative (folders)
  for entry = strsplit (path (), pathsep ())
    [found, info] = fileattrib (entry{1});
    if found && ~strcmp (entry{1}, '.') && any (strcmp (info.Name, folders)) && ~any (strcmp (entry{1}, folders)), rmpath (entry{1}); end
  end
end
