% LINES = OBJECTS ()  whether the old-style classes of the toolbox work as arguments of the module
function lines = objects ()
  lines = {kind('v_handle', v_handle (qn.pack (3))), product(), overwritten(), kind('chandle', chandle ([])), handle()};
end

function line = kind (name, x)
  line = sprintf ('%-34s class %s, isobject %d, isstruct %d', name, class (x), isobject (x), isstruct (x));
end

function line = product ()
  y = zeros (3, 1);
  quarn ('tbbp', v_handle (qn.pack (3 * eye (3))), [2; 2; 2], y);
  line = sprintf ('%-34s %s', 'product with a v_handle', worked (isequal (y, [6; 6; 6])));
end

% 'setsparse' writes into the matrix of the object, which copies of the object share.
function line = overwritten ()
  v = v_handle (qn.pack (sparse ([4 0; 1 5])));
  copy = v;
  now = get (v, 'file');
  quarn ('setsparse', v, now.ir + int32 (0), [], [7; 8; 9] + 0);
  now = get (v, 'file');
  other = get (copy, 'file');
  [here, there] = deal (worked (isequal (now.pr(:), [7; 8; 9])), worked (isequal (other.pr(:), [7; 8; 9])));
  line = sprintf ('%-34s %s; in a copy: %s', '''setsparse'' of a v_handle', here, there);
end

function line = handle ()
  h = chandle (quarn ('chandleset', 1, qn.pack (sparse ([4 -1; -1 4]))));
  away = onCleanup (@() delete (h));
  r = zeros (2, 1);
  quarn ('residual', r, h, [1; 2] + 0, zeros (2, 1), [], [0 0]);
  line = sprintf ('%-34s %s', 'residual with a chandle', worked (isequal (r, [2; 7])));
end

function text = worked (yes)
  text = 'NOT as expected';
  if yes, text = 'as expected'; end
end
