% SAY (FORMAT, ...)  one line of progress, with the time since the first one in front
function say (varargin)
  persistent started
  if isempty (started), started = tic (); end
  fprintf ('[%6.2f s] %s\n', toc (started), sprintf (varargin{:}));
  fflush_stdout ();
end

function fflush_stdout ()
  if exist ('OCTAVE_VERSION', 'builtin'), fflush (stdout ()); end
end
