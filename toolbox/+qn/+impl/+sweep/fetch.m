% S = FETCH (JOB, NAME)  what a file of the folder holds; plain data is read as such, the host's own form only from a folder that is trusted
function s = fetch (job, name)
  file = [job.folder, filesep(), name];
  if any (strcmp (strtok (name, '_'), {'results', 'errors'}))
    s = qn.impl.files.unflatten (qn.impl.files.read_data (file));
    if ~isstruct (s) || ~isfield (s, 'cases') || ~strcmp ([strtok(name, '_'), '_', qn.impl.sweep.spelt(s.cases), '.mat'], name)
      error ('qn:input', 'it holds other cases than its name says');
    end
    return
  end
  if ~qn.impl.sweep.trusted (job, file), error ('qn:trust', 'others can write it'); end
  s = load (file);
  if isfield (s, 'cases'), return, end
  s.cases = sscanf (name, [strtok(name, '_') '_%f']);       % a file a case, of an earlier version
  if isfield (s, 'result')
    s.results = {s.result};
  else
    s.identifiers = {s.identifier};
    s.messages = {s.message};
  end
end
