% A long mixed workload in one Octave process: octave-cli --no-history -qf soak.m MODULE_DIR SECONDS [CALLS]
%
% Runs rounds (soak_round.m) for SECONDS, and on until CALLS residual commands have been made. The results of every round must have the
% bits of the first round's, the errors their texts, and memory must stay flat. Ends with status 1 when it does not.
%
% Memory. The same rounds are run first against a function of the module's name that does nothing (folder idle): what the host itself grows
% by. The module may add 4 MiB to that, in a run of any length: arrays of 2 MiB come and go, and the host's allocator gives their memory
% back when it likes. Values that stay in memory by rule (freed handles of type 1003, handles still registered at a reload) are counted and
% cost 10 KiB each at most. Rounds of both kinds warm up first. A run of some seconds makes a tenth of the calls of a round, unless QUARN_FULL=1.
args = argv ();
module = make_absolute_filename (args{1});
seconds = str2double (args{2});
calls = 0;
if numel (args) > 2, calls = str2double (args{3}); end
share = 1;
if seconds < 10 && calls == 0 && isempty (getenv ('QUARN_FULL')), share = 0.1; end
here = fileparts (mfilename ('fullpath'));
addpath (here, fullfile (here, '..', 'octave', 'support'));
warning ('off', 'Octave:classdef-to-struct');
watched = isempty (getenv ('QUARN_SANITIZED'));   % the allocator of the sanitizers keeps freed memory

noise = 0;
fewest = 2;
if watched
  fewest = 6;
  addpath (fullfile (here, 'idle'));
  for k = 0:4, soak_round (k, false, share); end
  start = tic ();
  idle_start = resident_memory ();
  idle_rounds = 0;
  while toc (start) < seconds / 20 || idle_rounds < 3
    idle_rounds = idle_rounds + 1;
    soak_round (idle_rounds, false, share);
  end
  noise = max (resident_memory () - idle_start, 0);
  rmpath (fullfile (here, 'idle'));
  clear ('quarn');
  fprintf ('%d rounds without the module: memory %+d KiB\n', idle_rounds, noise);
end
addpath (module);

names = {'rounds', 'calls', 'evaluations', 'steps', 'handles', 'errors', 'products', 'reloads', 'kept'};
total = cell2struct (num2cell (zeros (numel (names), 1)), names, 1);
report = seconds / 10;
fault = '';
memory = 0;
start = tic ();
while isempty (fault) && (toc (start) < seconds || total.calls < calls || total.rounds < fewest)
  [numbers, count] = soak_round (total.rounds, true, share);
  total.rounds = total.rounds + 1;
  for n = names(2:end), total.(n{1}) = total.(n{1}) + count.(n{1}); end
  bits = typecast (numbers, 'uint64');
  if total.rounds == 1, wanted = bits; end
  memory = resident_memory ();
  if total.rounds <= 5
    memory_start = memory;   % the first rounds warm the host up
    kept_start = total.kept;
  end
  bound = noise + 4096 + 10 * (total.kept - kept_start);
  if ~isequal (bits, wanted)
    fault = sprintf ('round %d: other results than in the first round', total.rounds);
  elseif watched && memory - memory_start > bound
    fault = sprintf ('round %d: memory grew from %d to %d KiB, more than %d', total.rounds, memory_start, memory, bound);
  end
  if toc (start) > report
    report = report + max (seconds / 20, 5);
    fprintf ('%6.0f s  %d rounds, %.4g residual commands, %.4g handle rounds, memory %+d KiB\n', ...
             toc (start), total.rounds, total.calls, total.handles, memory - memory_start);
    fflush (stdout);
  end
end

fprintf ('\n%-48s %.0f s\n', 'time', toc (start));
fprintf ('%-48s %d\n', 'rounds', total.rounds);
fprintf ('%-48s %d\n', '"residual" commands', total.calls);
fprintf ('%-48s %d (%d steps of the integrator, each with every handle, and the commands)\n', 'residual evaluations of models and handles', ...
         total.evaluations, total.steps);
fprintf ('%-48s %d\n', 'rounds of chandleset, chandleget, chandleclear', total.handles);
fprintf ('%-48s %d\n', 'malformed calls', total.errors);
fprintf ('%-48s %d\n', 'products with worker threads', total.products);
fprintf ('%-48s %d\n', 'reloads', total.reloads);
fprintf ('%-48s %d KiB at the start, %d KiB at the end, %d KiB of growth allowed\n', 'memory', memory_start, memory, bound);
fprintf ('%-48s %d values, %d KiB allowed for them\n', 'kept by rule', total.kept, 10 * (total.kept - kept_start));
if watched
  seen = 1024 * bound ./ [total.calls total.handles total.errors total.reloads];
  fprintf ('%-48s %.3g bytes a command, %.3g a handle round, %.3g an error, %.3g a reload\n', 'smallest leak that would have shown', seen);
else
  fprintf ('memory was not watched: sanitizers\n');
end
if isempty (fault)
  fprintf ('%-48s the same bits in every round\n', sprintf ('results, %d numbers a round', numel (wanted)));
else
  fprintf ('FAILED: %s\n', fault);
  exit (1);
end
