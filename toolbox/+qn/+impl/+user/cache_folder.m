% FOLDER = CACHE_FOLDER ()  where compiled laws are kept, made where it is missing: quarn/laws in XDG_CACHE_HOME, or in .cache of the home folder
%
% What lies in it is run: it must belong to the user, and nobody else may write there.
function folder = cache_folder ()
  base = getenv ('XDG_CACHE_HOME');
  if isempty (base) || base(1) ~= '/'
    if isempty (getenv ('HOME')), error ('qn:input', 'compiled laws need a place: set the environment variable XDG_CACHE_HOME or HOME'); end
    base = fullfile (getenv ('HOME'), '.cache');
  end
  folder = fullfile (base, 'quarn');
  for place = {base, folder, fullfile(folder, 'laws')}
    if ~exist (place{1}, 'dir'), make (place{1}); end
  end
  for place = {folder, fullfile(folder, 'laws')}, refuse_shared (place{1}); end
  folder = place{1};
end

function make (folder)
  if exist ('OCTAVE_VERSION', 'builtin')
    before = umask (77);
    back = onCleanup (@() umask (before));
  end
  [made, why] = mkdir (folder);
  if ~made && ~exist (folder, 'dir'), error ('qn:input', 'compiled laws are kept in %s, which cannot be made: %s', folder, why); end
  if ~exist ('OCTAVE_VERSION', 'builtin')
    mode = java.nio.file.attribute.PosixFilePermissions.fromString ('rwx------');
    java.nio.file.Files.setPosixFilePermissions (java.io.File (folder).toPath (), mode);
  end
end

function refuse_shared (folder)
  if exist ('OCTAVE_VERSION', 'builtin')
    [info, failed, why] = stat (folder);
    if failed ~= 0, error ('qn:input', 'compiled laws are kept in %s, which cannot be looked at: %s', folder, why); end
    mine = info.uid == geteuid ();
    shared = any (info.modestr([6 9]) == 'w');
  else
    path = java.io.File (folder).toPath ();
    options = javaArray ('java.nio.file.LinkOption', 0);
    mine = strcmp (char (java.nio.file.Files.getOwner (path, options).getName ()), char (java.lang.System.getProperty ('user.name')));
    mode = char (java.nio.file.attribute.PosixFilePermissions.toString (java.nio.file.Files.getPosixFilePermissions (path, options)));
    shared = any (mode([5 8]) == 'w');
  end
  if ~mine || shared
    error ('qn:input', ...
           ['compiled laws are kept in %s, and they are run: the folder must belong to you, and nobody else may write in it ' ...
                        '(chmod go-w); XDG_CACHE_HOME names another place'], folder);
  end
end
