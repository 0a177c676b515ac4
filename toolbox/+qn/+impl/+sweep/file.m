% FILE = FILE (JOB, KIND, CASES)  file of a bundle of cases: their results (KIND 'results' as plain data, 'objects' in the host's own form) or
%                                 their errors ('errors')
function file = file (job, kind, cases)
  file = [job.folder, filesep(), kind, '_', qn.impl.sweep.spelt(cases), '.mat'];
end
