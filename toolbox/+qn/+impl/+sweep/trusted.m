% IS = TRUSTED (JOB, FILE)  whether a file of the sweep's folder may be read in a way that runs what it holds: the caller says so, or it and the
%                           folder belong to the user and nobody else can write them
function is = trusted (job, file)
  is = job.trust || (own (job.folder) && own (file));
end

function is = own (name)
  if exist ('OCTAVE_VERSION', 'builtin')
    [s, failed] = stat (name);
    is = ~failed && s.uid == geteuid () && s.modestr(6) ~= 'w' && s.modestr(9) ~= 'w';
  else
    [there, s] = fileattrib (name);
    is = there && isequal ([s.UserWrite, s.GroupWrite, s.OtherWrite], [1 0 0]);
  end
end
