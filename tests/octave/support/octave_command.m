% TEXT = OCTAVE_COMMAND (CODE)  command that runs CODE in an Octave of its own, with module, toolbox and the functions of the tests
function text = octave_command (code)
  folders = {fileparts(fileparts (which ('qn.run'))), fileparts(which ('quarn')), fileparts(which ('use_toolbox'))};
  text = sprintf ('octave-cli --no-history -qf --eval "%s%s"', sprintf ('addpath (''%s''); ', folders{:}), code);
end
