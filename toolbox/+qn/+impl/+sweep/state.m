% [DONE, FAILED, BEGUN] = STATE (JOB)  which cases have which files, as rows of logical values
function [done, failed, begun] = state (job)
  files = dir (fullfile (job.folder, '*_*.mat'));
  names = sprintf ('%s\n', files.name);
  done = having (names, 'case', job.n);
  failed = having (names, 'failed', job.n) & ~done;
  begun = having (names, 'begun', job.n) & ~done & ~failed;
end

function is = having (names, kind, n)
  is = false (1, n);
  found = regexp (names, ['(?<=^' kind '_)\d+(?=\.mat$)'], 'match', 'lineanchors');
  is(cellfun (@str2double, found)) = true;
end
