% [DONE, FAILED, FILES] = STATE (JOB)  which cases have a result or an error, as rows of logical values, from the names in the folder alone
%
% FILES has the names of each kind. Folders of earlier versions have a file a case, "case_" and "failed_" with six digits.
function [done, failed, files] = state (job)
  names = qn.impl.files.names_in (job.folder);
  names = sprintf ('%s\n', names{:});
  for kind = {'results', 'objects', 'errors'}
    [files.(kind{1}), cases.(kind{1})] = having (names, [kind{1} '_'], '\d[\d,-]*', job.n);
  end
  for kind = {'case', 'failed'}
    [files.(kind{1}), cases.(kind{1})] = having (names, [kind{1} '_'], '\d{6,12}', job.n);
  end
  done = cases.results | cases.objects | cases.case;
  failed = (cases.errors | cases.failed) & ~done;
end

function [files, is] = having (names, kind, form, n)
  lists = regexp (names, ['(?<=^' kind ')' form '(?=\.mat$)'], 'match', 'lineanchors');
  is = qn.impl.sweep.numbered (strjoin (lists, ','), n);
  files = cellfun (@(list) [kind list '.mat'], lists, 'UniformOutput', false);
end
