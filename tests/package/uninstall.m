% Removes the package again: nothing of it stays in the prefix.
addpath (fileparts (mfilename ('fullpath')));
sandbox ();
pkg ('uninstall', 'quarn');
assert (isempty (pkg ('list', 'quarn')));
assert (~exist (fullfile (getenv ('PACKAGE_PREFIX'), ['quarn-' getenv('PACKAGE_VERSION')]), 'dir'));
