% [DONE, FAILED, BEGUN] = STATE (JOB)  which cases have which files, as rows of logical values
function [done, failed, begun] = state (job)
  names = qn.impl.files.names_in (job.folder);
  names = sprintf ('%s\n', names{:});
  done = having (names, 'case', job.n);
  failed = having (names, 'failed', job.n) & ~done;
  begun = having (names, 'begun', job.n) & ~done & ~failed;
end

function is = having (names, kind, n)
  is = false (1, n);
  found = cellfun (@str2double, regexp (names, ['(?<=^' kind '_)\d{1,12}(?=\.mat$)'], 'match', 'lineanchors'));
  is(found(found >= 1 & found <= n)) = true;
end
