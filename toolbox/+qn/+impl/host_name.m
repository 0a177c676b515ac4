% NAME = HOST_NAME ()  the program that runs this, with its version
function name = host_name ()
  name = ['MATLAB ' version()];
  if exist ('OCTAVE_VERSION', 'builtin') > 0, name = ['GNU Octave ' version()]; end
end
