% JOB = JOB (F, CASES, FOLDER, PROGRESS)  a sweep and its folder: a new one, or one that goes on
%
% The file sweep.mat says what the folder holds. Its field "format" counts the ways in which the files of a sweep were ever laid out;
% without the field they are those of format 1; in format 2 the function is stored in the form of carried. JOB has f, cases, n, shape (of
% the results), folder, progress and joined (others have begun it).
function job = job (f, cases, folder, progress)
  if ~isa (f, 'function_handle'), error ('qn:input', 'qn.sweep: a function expected, got an array of class %s', class (f)); end
  if isstruct (cases) || iscell (cases)
    shape = size (cases);
  elseif (isnumeric (cases) || islogical (cases)) && ndims (cases) == 2
    shape = [1, size(cases, 2)];
  else
    error ('qn:input', 'qn.sweep: the cases must be a struct array, a cell array or a matrix, got an array of class %s', class (cases));
  end
  known = 2;
  make_folder (folder);
  job = struct ('f', f, 'cases', {cases}, 'n', prod (shape), 'shape', shape, 'folder', absolute (folder), 'progress', progress, ...
                'mark', false);
  file = fullfile (job.folder, 'sweep.mat');
  job.joined = exist (file, 'file') ~= 0;
  if ~job.joined
    names = qn.impl.files.names_in (job.folder);
    if any (strncmp (names, 'case_', 5) & ~cellfun (@isempty, regexp (names, '\.mat$', 'once')))
      error ('qn:input', 'qn.sweep: the folder %s has results in it, but not the file sweep.mat that says what they belong to', folder);
    end
    % Of two sweeps that begin at the same time one says what the folder is for.
    job.joined = ~qn.impl.sweep.keep (file, struct ('f', {qn.impl.sweep.carried(f)}, 'cases', {cases}, 'format', known), false);
  end
  if job.joined, same_sweep (load (file), f, cases, folder, known); end
end

function same_sweep (before, f, cases, folder, known)
  if isstruct (before.f), before.f = qn.impl.sweep.carried (before.f); end
  if isfield (before, 'format') && ~isequal (before.format, 1) && ~isequal (before.format, known)
    error ('qn:input', ['qn.sweep: the folder %s has files of format %s, this version reads format %d; go on with the version that ' ...
                        'wrote them, or give another folder'], folder, mat2str (before.format), known);
  end
  if ~qn.impl.alike (before.cases, cases)
    error ('qn:input', 'qn.sweep: the folder %s belongs to a sweep with other cases; give another folder or empty it', folder);
  end
  if ~qn.impl.alike (before.f, f)
    error ('qn:input', ['qn.sweep: the folder %s belongs to a sweep of another function, %s, or of one with other values in it; ' ...
                        'give another folder or empty it'], folder, func2str (before.f));
  end
end

function make_folder (folder)
  if ~ischar (folder), error ('qn:input', 'qn.sweep: the name of a folder expected, got an array of class %s', class (folder)); end
  if exist (folder, 'dir'), return, end
  [made, why] = mkdir (folder);
  if ~made, error ('qn:input', 'qn.sweep: cannot make the folder %s: %s', folder, why); end
end

% Workers may have another current folder.
function folder = absolute (folder)
  here = cd (folder);
  back = onCleanup (@() cd (here));
  folder = pwd ();
end
