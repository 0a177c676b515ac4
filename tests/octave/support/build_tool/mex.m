% MEX (...)  stands for the host's compiler command: keeps its arguments in the variable mex_arguments of the base workspace
function mex (varargin)
  assignin ('base', 'mex_arguments', varargin);
end
