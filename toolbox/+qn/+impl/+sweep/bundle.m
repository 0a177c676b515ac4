% N = BUNDLE ('open', JOB)             begins a bundle of cases of the sweep JOB in memory; N is its number
% DUE = BUNDLE ('add', N, K, RESULT)   with the result of case K, {value, seconds}, or its error, {identifier, message, seconds}; DUE: write it
% BUNDLE ('write', N)                  writes what is in it, and empties it
% BUNDLE ('close', N)                  writes it and ends it
%
% Each case beyond a quarter of a second is a bundle of its own; shorter ones come together for half a second, or 20 MB. So that is what a
% killed process loses. The bundles are a stack: a case may run a sweep itself.
function out = bundle (what, n, varargin)
  persistent open
  mlock
  if isempty (open), open = {}; end
  switch what
    case 'open'
      open{end + 1} = emptied (struct ('job', n));
      out = numel (open);
    case 'add'
      [open{n}, out] = added (open{n}, varargin{:});
    case 'write'
      b = open{n};
      try
        written (b);
      catch err
        open{n} = emptied (b);                             % its cases run again
        rethrow (err);
      end
      open{n} = emptied (b);
    case 'close'
      b = open{n};
      open = open(1:n - 1);
      written (b);
  end
end

function b = emptied (b)
  b.done = struct ('cases', zeros (1, 0), 'results', {{}}, 'seconds', zeros (1, 0));
  b.failed = struct ('cases', zeros (1, 0), 'identifiers', {{}}, 'messages', {{}});
  b.bytes = 0;
  b.begun = [];
end

function [b, due] = added (b, k, result)
  seconds = result{end};
  if isempty (b.begun), b.begun = tic (); end
  if numel (result) == 2
    value = result{1};
    b.done.cases(end + 1) = k;
    b.done.results{end + 1} = value;
    b.done.seconds(end + 1) = seconds;
    about = whos ('value');
    b.bytes = b.bytes + about.bytes;
  else
    b.failed.cases(end + 1) = k;
    b.failed.identifiers{end + 1} = result{1};
    b.failed.messages{end + 1} = result{2};
  end
  due = seconds > 0.25 || toc (b.begun) > 0.5 || b.bytes > 2e7;
end

function written (b)
  for list = {'done', 'failed'}
    s = b.(list{1});
    while ~isempty (s.cases)
      % A name of a file has 255 characters at most.
      n = numel (s.cases);
      [~, order] = sort (s.cases);
      while n > 1 && numel (qn.impl.sweep.spelt (s.cases(order(1:n)))) > 200, n = ceil (n / 2); end
      store (b.job, list{1}, part_of (s, order(1:n)));
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
