% Runs the tests of the installed package; their log goes to the current folder.
addpath (fileparts (mfilename ('fullpath')));
sandbox ();
pkg ('test', 'quarn');
