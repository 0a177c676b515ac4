% Installs the package PACKAGE_FILE into PACKAGE_PREFIX.
addpath (fileparts (mfilename ('fullpath')));
sandbox ();
pkg ('install', getenv ('PACKAGE_FILE'));
info = pkg ('list', 'quarn');
assert (numel (info) == 1 && strcmp (info{1}.version, getenv ('PACKAGE_VERSION')));
fprintf ('ok      pkg install\n');
