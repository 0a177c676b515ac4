% COUNTS = UNIT (SENT, J)  part J of SENT.parts in a process of the parallel engine: [ended, failed]
%
% A file of the process's own says which case it is at, should it end there; it gets the name "ended_..." when the part is done.
function counts = unit (sent, j)
  job = qn.impl.sweep.unpack (char (sent.file), char (sent.digest));
  name = fullfile (fileparts (char (sent.file)), sprintf ('begun_%d', getpid ()));
  id = fopen (name, 'w');
  closed = onCleanup (@() ended (id, name));
  cases = sent.cases(sent.first(j):sent.first(j + 1) - 1);
  [n, failed] = qn.impl.sweep.run_cases (job, cases, sent.limit, @(k) marked (id, k), @(n, failed) 0);
  counts = [n, failed];
end

function marked (id, k)
  fseek (id, 0, 'bof');
  fprintf (id, '%12d', k);
  fflush (id);
end

function ended (id, name)
  fclose (id);
  [~, ~] = qn.impl.files.rename_file (name, strrep (name, 'begun_', 'ended_'));
end
