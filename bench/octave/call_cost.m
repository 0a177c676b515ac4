% Cost of a call: commands that do next to nothing against a MEX function that does nothing, with the same arguments.
%
%   octave-cli --no-history -qf bench/octave/call_cost.m MODULE_DIR
%
% Prints microseconds of processor time per call, best of 15 alternating rounds, and the ratio. It should be at most 2: the module's own
% share of a call (reading the word, finding the command) stays below the host's.
args = argv ();
addpath (args{1});
addpath (fileparts (mfilename ('fullpath')));
compiled = compile_mex ({'nothing'});

function module_call (calls), for k = 1:calls, quarn ('ismex'); end, end
function empty_call (calls), for k = 1:calls, nothing ('ismex'); end, end
function module_presence (calls), for k = 1:calls, quarn (); end, end
function empty_presence (calls), for k = 1:calls, nothing (); end, end

function us = per_call (fn)
  calls = 20000;
  start = cputime ();
  fn (calls);
  us = 1e6 * (cputime () - start) / calls;
end

function compare (name, of_module, of_nothing)
  module = Inf;
  empty = Inf;
  for round = 1:15
    module = min (module, per_call (of_module));
    empty = min (empty, per_call (of_nothing));
  end
  fprintf ('%-15s %6.3f us   empty MEX function %6.3f us   ratio %5.2f\n', name, module, empty, module / empty);
end

compare ('quarn ()', @module_presence, @empty_presence);
compare ('quarn (''ismex'')', @module_call, @empty_call);
clear nothing
confirm_recursive_rmdir (false);
rmdir (compiled, 's');
