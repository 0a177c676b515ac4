% LIST = ENGINE_LIST ()  what can run the cases of a sweep: one struct array, one element an engine, each from a file of this folder
%
%   name     report.engine of qn.sweep
%   word     value of 'engine' that asks for it; two hosts may have different engines for one word
%   host     'octave' or 'matlab' where it runs on this host only, ''
%   lacking  WHY = lacking (): what it needs and does not find here, in words, or ''
%   instead  name of the engine that takes over where something is lacking, with a warning; '': that is an error
%   run      WAITING = run (JOB, PENDING, WORKERS, O): runs the cases PENDING, with the options O of qn.sweep; gives whether some are
%            still to come when it returns
function list = engine_list ()
  list = [qn.impl.sweep.serial_engine(), qn.impl.sweep.parallel_engine(), qn.impl.sweep.pool_engine(), qn.impl.sweep.slurm_engine()];
end
