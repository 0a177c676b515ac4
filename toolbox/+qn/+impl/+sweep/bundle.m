% N = BUNDLE ('open', JOB)             begins a bundle of cases of the sweep JOB in memory; N is its number
% DUE = BUNDLE ('add', N, K, RESULT)   with the result of case K, {value, seconds}, or its error, {identifier, message, seconds}; DUE: write it
% BUNDLE ('write', N)                  writes what is in it, and empties it
% BUNDLE ('close', N)                  writes it and ends it
%
% Each case beyond a quarter of a second is a bundle of its own; shorter ones come together for half a second, or 20 MB. So that is what a
% killed process loses. The bundles are a stack: a case may run a sweep itself.
function out = bundle (what, n, k, result)
  % Of the innermost sweep variables of their own, as Octave copies a list that is deep in another one when it grows.
  persistent jobs outer ended bytes begun
  mlock
  switch what
    case 'open'
      outer{end + 1} = {ended, bytes, begun};
      jobs{end + 1} = n;
      [ended, bytes, begun] = deal ({}, 0, []);
      out = numel (jobs);
    case 'add'
      if isempty (begun), begun = tic (); end
      ended{end + 1} = {k, result};
      bytes = bytes + bytes_of (result{1});
      out = result{end} > 0.25 || toc (begun) > 0.5 || bytes > 2e7;
    case 'write'
      try
        written (jobs{n}, ended);
      catch err
        [ended, bytes, begun] = deal ({}, 0, []);          % its cases run again
        rethrow (err);
      end
      [ended, bytes, begun] = deal ({}, 0, []);
    case 'close'
      % Those of sweeps inside that were not closed are lost: their runs are over.
      if n < numel (jobs), [ended, bytes, begun] = outer{n + 1}{:}; end
      [job, list] = deal (jobs{n}, ended);
      [ended, bytes, begun] = outer{n}{:};
      jobs = jobs(1:n - 1);
      outer = outer(1:n - 1);
      written (job, list);
  end
end

function n = bytes_of (value)
  if isnumeric (value) && numel (value) < 1000
    n = 8 * numel (value);
  else
    about = whos ('value');
    n = about.bytes;
  end
end

function written (job, ended)
  numbers = cellfun (@(x) x{1}, ended);
  all_of_them = cellfun (@(x) x{2}, ended, 'UniformOutput', false);
  good = cellfun ('length', all_of_them) == 2;
  results = all_of_them(good);
  errors = all_of_them(~good);
  part = @(list, k) cellfun (@(x) x{k}, list, 'UniformOutput', false);
  lists.done = struct ('cases', numbers(good), 'results', {part(results, 1)}, 'seconds', cellfun (@(x) x{2}, results));
  lists.failed = struct ('cases', numbers(~good), 'identifiers', {part(errors, 1)}, 'messages', {part(errors, 2)});
  for list = {'done', 'failed'}
    s = lists.(list{1});
    while ~isempty (s.cases)
      % A name of a file has 255 characters at most.
      n = numel (s.cases);
      [~, order] = sort (s.cases);
      while n > 1 && numel (qn.impl.sweep.spelt (s.cases(order(1:n)))) > 200, n = ceil (n / 2); end
      store (job, list{1}, part_of (s, order(1:n)));
      s = part_of (s, order(n + 1:end));
    end
  end
end

function s = part_of (s, order)
  for name = fieldnames (s).'
    x = s.(name{1});
    s.(name{1}) = x(order);
  end
end

% Where a bundle cannot be written as a whole, as on a disk that is nearly full, its cases are tried one by one.
function store (job, list, s)
  try
    put (job, list, s);
  catch err
    if numel (s.cases) == 1, rethrow (err); end
    for k = 1:numel (s.cases), put (job, list, part_of (s, k)); end
  end
end

function put (job, list, s)
  if strcmp (list, 'failed')
    qn.impl.sweep.keep (qn.impl.sweep.file (job, 'errors', s.cases), qn.impl.files.flatten (s));
    return
  end
  [flat, good] = qn.impl.files.flatten (s);
  if good && numel (flat.bytes) < 2e9
    qn.impl.sweep.keep (qn.impl.sweep.file (job, 'results', s.cases), flat);
  else
    qn.impl.sweep.keep_objects (qn.impl.sweep.file (job, 'objects', s.cases), s);
  end
end
