% LINES = UNLOADING ()  the module unloaded with 'clear' and loaded again 50 times, each time after a product with worker threads
function lines = unloading ()
  handles = numel (quarn ('chandleget'));
  if handles > 0
    lines = {sprintf('not tried: %d of the user''s handles would be lost; quarn (''chandleclear'') frees them', handles)};
    return
  end
  started = clock ();
  n = 20000;
  band = spdiags (ones (n, 7), -3:3, n, n);      % enough entries for the worker threads
  a = qn.pack (band);
  x = ones (n, 1);
  wanted = band * x;
  good = 0;
  clear ('quarn');
  before = threads ();
  for k = 1:50
    y = zeros (n, 1);
    quarn ('tbbp', a, x, y);
    most = threads ();
    good = good + isequal (y, wanted);
    clear ('quarn');
  end
  after = threads ();
  lines = {sprintf('%d of 50 products right, each followed by clear; %.1f s', good, etime (clock (), started)), ...
           sprintf('threads of the process: %d before, %d after a product, %d after clear', before, most, after)};
end

function n = threads ()
  found = dir ('/proc/self/task');
  n = sum (~strncmp ({found.name}, '.', 1));
end
