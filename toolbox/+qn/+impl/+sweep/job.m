% JOB = JOB (F, CASES, FOLDER, O)  a sweep and its folder: a new one, or one that goes on; O are the options of qn.sweep
%
% The file sweep.mat says what the folder holds, as data: function and cases in the form of plain, to be compared with those of the caller,
% from which alone they are run. Its field "format" counts the ways in which the files of a sweep were ever laid out: 3 has bundles of
% cases; 2 and 1 (without the field) have a file a case in the host's own form and are read where that is trusted. JOB has f, cases, n,
% shape (of the results), folder, progress, trust and joined (others have begun it).
function job = job (f, cases, folder, o)
  if ~isa (f, 'function_handle'), error ('qn:input', 'qn.sweep: a function expected, got an array of class %s', class (f)); end
  if isstruct (cases) || iscell (cases)
    shape = size (cases);
  elseif (isnumeric (cases) || islogical (cases)) && ndims (cases) == 2
    shape = [1, size(cases, 2)];
  else
    error ('qn:input', 'qn.sweep: the cases must be a struct array, a cell array or a matrix, got an array of class %s', class (cases));
  end
  make_folder (folder);
  job = struct ('f', f, 'cases', {cases}, 'n', prod (shape), 'shape', shape, 'folder', absolute (folder), 'progress', o.progress, ...
                'trust', o.trust);
  file = fullfile (job.folder, 'sweep.mat');
  this = struct ('format', 3, 'f', flat (f), 'cases', flat (cases));
  job.joined = exist (file, 'file') ~= 0;
  if ~job.joined
    names = qn.impl.files.names_in (job.folder);
    if any (~cellfun (@isempty, regexp (names, '^(case|results|objects)_.*\.mat$', 'once')))
      error ('qn:input', 'qn.sweep: the folder %s has results in it, but not the file sweep.mat that says what they belong to', folder);
    end
    % Of two sweeps that begin at the same time one says what the folder is for.
    job.joined = ~qn.impl.sweep.keep (file, this, false);
  end
  if job.joined, same_sweep (job, file, this, folder); end
  [~, ~, files] = qn.impl.sweep.state (job);
  for name = [files.objects, files.case, files.failed]
    if ~qn.impl.sweep.trusted (job, fullfile (job.folder, name{1})), not_trusted (folder, name{1}); end
  end
end

function y = flat (x)
  [y, good] = qn.impl.files.flatten (x);
  if ~good, [y, good] = qn.impl.files.flatten (qn.impl.sweep.plain (x)); end
  if ~good, error ('qn:input', 'qn.sweep: function or cases hold values that are nested too deep to be stored'); end
end

function not_trusted (folder, name)
  error ('qn:input', ['qn.sweep: %s in the folder %s holds functions or objects, or was written by an earlier version: reading it runs ' ...
                      'what it holds, and others can write there; give ''trust'', true if you trust them, or another folder'], ...
         name, folder);
end

% Folders of earlier versions take the new format with their first new call, so that those versions leave them alone.
function same_sweep (job, file, this, folder)
  try
    before = qn.impl.files.read_data (file);
  catch
    before = [];
  end
  if isempty (before)
    if ~qn.impl.sweep.trusted (job, file), not_trusted (folder, 'sweep.mat'); end
    before = load (file);
    if ~isfield (before, 'format'), before.format = 1; end
  end
  if ~isfield (before, 'format') || ~any (cellfun (@(n) isequal (before.format, n), {1, 2, 3}))
    name = 'without a number';
    if isfield (before, 'format') && isnumeric (before.format), name = sprintf ('%g ', before.format); end
    error ('qn:input', ['qn.sweep: the folder %s has files of format %s, this version reads formats 1 to 3; go on with the version ' ...
                        'that wrote them, or give another folder'], folder, strtrim (name));
  end
  old = before.format < 3;
  if old
    if isstruct (before.f), before.f = struct ('text', before.f.anonymous, 'values', {{old_values(before.f.values)}}); end
    [before.f, before.cases] = deal (flat (before.f), flat (before.cases));
  end
  if ~same (before.cases, this.cases)
    error ('qn:input', 'qn.sweep: the folder %s belongs to a sweep with other cases; give another folder or empty it', folder);
  end
  if ~same (before.f, this.f)
    text = '(it cannot be read)';
    f = qn.impl.files.unflatten (before.f);
    if isfield (f, 'text'), text = f.text; end
    error ('qn:input', ['qn.sweep: the folder %s belongs to a sweep of another function, %s, or of one with other values in it; ' ...
                        'give another folder or empty it'], folder, text);
  end
  if old, qn.impl.sweep.keep (file, this); end
end

% In format 2 functions were stored as structures, in cells too.
function x = old_values (x)
  if isstruct (x) && isequal (fieldnames (x), {'anonymous'; 'values'})
    x = struct ('text', x.anonymous, 'values', {{old_values(x.values)}});
  elseif isstruct (x) && numel (x) == 1
    for name = fieldnames (x).', x.(name{1}) = old_values (x.(name{1})); end
  elseif iscell (x)
    for k = 1:numel (x), x{k} = old_values (x{k}); end
  end
end

% Bit by bit; or as values, where the order of fields changed.
function is = same (a, b)
  is = isequal (a, b) || (numel (a.bytes) == numel (b.bytes) && qn.impl.alike (qn.impl.files.unflatten (a), qn.impl.files.unflatten (b)));
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
