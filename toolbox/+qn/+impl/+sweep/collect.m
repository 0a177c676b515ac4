% [RESULTS, REPORT] = COLLECT (JOB, WAITING)  what the files hold, in the order of the cases
%
% A case without a file is lost, unless it is WAITING in a queue.
function [results, report] = collect (job, waiting)
  [done, failed] = qn.impl.sweep.state (job);
  results = cell (job.shape);
  time = NaN (job.shape);
  failures = struct ('number', {}, 'identifier', {}, 'message', {}, 'parameters', {});
  for k = 1:job.n
    message = 'the process that ran it ended before it wrote a result';
    if done(k)
      try
        file = load (qn.impl.sweep.file (job, 'case', k));
        results{k} = file.result;
        time(k) = file.seconds;
        continue
      catch err
        % Half a file, as after a failure of the disk. It goes, so that the case is run again.
        message = ['its file cannot be read: ' err.message];
        done(k) = false;
        qn.impl.files.remove_file (qn.impl.sweep.file (job, 'case', k));
      end
    end
    if failed(k)
      why = load (qn.impl.sweep.file (job, 'failed', k));
    elseif waiting
      continue
    else
      why = struct ('identifier', 'qn:lost', 'message', message);
    end
    failures(end + 1) = struct ('number', k, 'identifier', why.identifier, 'message', why.message, ...
                                'parameters', {qn.impl.sweep.parameters(job, k)});
  end
  report = struct ('done', reshape (done, job.shape), 'failed', failures, 'ran', 0, ...
                   'waiting', job.n - sum (done) - numel (failures), 'time', time);
end
