% [ENGINE, WORKERS] = SWEEP_ENGINE (ENGINE, WORKERS, COUNT)  what runs COUNT cases: 'serial', 'parallel', 'pool' or 'slurm'
function [engine, workers] = sweep_engine (engine, workers, count)
  if ~ischar (engine) || ~any (strcmp (engine, {'auto', 'serial', 'parallel', 'slurm'}))
    error ('qn:input', 'qn.sweep: the engine must be ''auto'', ''serial'', ''parallel'' or ''slurm''');
  end
  octave = exist ('OCTAVE_VERSION', 'builtin') > 0;
  if strcmp (engine, 'slurm')
    if ~octave
      error ('qn:engine', 'qn.sweep: job arrays run Octave; on MATLAB open a pool on the cluster (parpool) and use ''parallel''');
    end
    [status, text] = system ('sbatch --version 2>&1');
    if status ~= 0, error ('qn:engine', 'qn.sweep: the commands of Slurm do not run here: %s', strtrim (text)); end
    return
  end
  if isempty (workers) && octave, workers = nproc (); end
  if strcmp (engine, 'auto') && (count < 2 || isequal (workers, 1)), engine = 'serial'; end
  if strcmp (engine, 'serial'), return, end
  if octave
    engine = with_package ();
  else
    engine = 'pool';
    if isempty (workers), workers = Inf; end
    if ~exist ('parpool', 'file')
      engine = 'serial';
      warning ('qn:serial', 'there is no Parallel Computing Toolbox here: the cases run one after another');
    end
  end
end

function engine = with_package ()
  engine = 'parallel';
  try
    pkg ('load', 'parallel');
  catch
    engine = 'serial';
    warning ('qn:serial', ['Octave''s package parallel is not installed: the cases run one after another; on Debian ' ...
                           'it is the package octave-parallel, elsewhere "pkg install -forge parallel" gets it']);
  end
end
