% [RESULTS, REPORT] = COLLECT (JOB, WAITING)  what the files hold, in the order of the cases
%
% A case without a file is lost, unless it is WAITING in a queue.
function [results, report] = collect (job, waiting)
  [~, ~, files] = qn.impl.sweep.state (job);
  results = cell (job.shape);
  time = NaN (job.shape);
  [done, failed, unread] = deal (false (1, job.n));
  why = cell (3, job.n);
  why(2, :) = {'the process that ran it ended before it wrote a result'};
  for name = [files.case, files.objects, files.results]
    [s, trouble] = read (job, name{1}, 'results');
    if ~isempty (trouble)
      lost = qn.impl.sweep.numbered (regexprep (name{1}, '^[a-z]+_(.*)\.mat$', '$1'), job.n);
      why(2, lost) = {['its file cannot be read: ' trouble]};
      continue
    end
    results(s.cases) = s.results;
    time(s.cases) = s.seconds;
    done(s.cases) = true;
  end
  for name = [files.failed, files.errors]
    [s, trouble] = read (job, name{1}, 'messages');
    if ~isempty (trouble), continue, end
    failed(s.cases) = true;
    why(1, s.cases) = s.identifiers;
    why(2, s.cases) = s.messages;
  end
  why(1, ~failed) = {'qn:lost'};
  list = reshape (find (~done & (failed | ~waiting)), 1, []);
  for k = list, why{3, k} = qn.impl.sweep.parameters (job, k); end
  failures = struct ('number', num2cell (list), 'identifier', why(1, list), 'message', why(2, list), 'parameters', why(3, list));
  report = struct ('done', reshape (done, job.shape), 'failed', failures, 'ran', 0, ...
                   'waiting', job.n - sum (done) - numel (failures), 'time', time);
end

% A file that cannot be read, as after a failure of the disk, goes, so that its cases are run again.
function [s, trouble] = read (job, name, field)
  trouble = '';
  try
    s = qn.impl.sweep.fetch (job, name);
    if ~isfield (s, field) || numel (s.(field)) ~= numel (s.cases) || any (s.cases > job.n), error ('qn:input', 'it is not whole'); end
  catch err
    if strcmp (err.identifier, 'qn:trust'), rethrow (err); end
    s = [];
    trouble = err.message;
    qn.impl.files.remove_file ([job.folder, filesep(), name]);
  end
end
