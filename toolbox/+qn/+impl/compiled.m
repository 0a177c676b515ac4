% Calls the compiled module from a file of another name, where its help file on the path is no longer in front of it.
function varargout = compiled (varargin)
  if strcmp (which ('quarn'), fullfile (fileparts (fileparts (fileparts (mfilename ('fullpath')))), 'quarn.m'))
    error ('quarn: the help file hides the compiled module; put the module''s folder on the path with addpath');
  end
  [varargout{1:nargout}] = quarn (varargin{:});
end
