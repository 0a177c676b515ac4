% LINES = WRITES_IN_FUNCTIONS ()  whether results arrive in variables of a function, in fields and in cells
%
% Plain code, as users write it: hosts treat code in functions, scalars above all, in ways of their own.
function lines = writes_in_functions ()
  lines = {vector(), scalar(), sum_of_numbers(), literal(), range(), of_caller(), field(), scalar_field(), element_of_array(), ...
           cell_element(), scalar_cell(), nested()};
end

function line = vector ()
  y = zeros (3, 1);
  copy = y;
  quarn ('tbbp', qn.pack (3 * eye (3)), [2; 2; 2], y);
  line = qn.impl.host.written ('zeros (3, 1)', zeros (3, 1), y, copy);
end

function line = scalar ()
  y = zeros (1, 1);
  copy = y;
  quarn ('tbbp', qn.pack (3), 2, y);
  line = qn.impl.host.written ('zeros (1, 1)', zeros (1, 1), y, copy);
end

function line = sum_of_numbers ()
  y = sum ([0.5 0.25]);
  copy = y;
  quarn ('tbbp', qn.pack (3), 2, y);
  line = qn.impl.host.written ('scalar that was computed', 3 / 4, y, copy);
end

% In a text that is parsed afresh: the write may reach the number in the code itself.
function line = literal ()
  [now, copy] = deal (0);
  eval ('y = 41.5; copy = y; quarn (''tbbp'', qn.pack (3), 2, y); now = y;');
  line = qn.impl.host.written ('literal scalar', 83 / 2, now, copy);
end

function line = range ()
  y = 1:3;
  copy = y;
  quarn ('tbbp', qn.pack (3 * eye (3)), [2; 2; 2], y);
  line = qn.impl.host.written ('range 1:3', [1 2 3], y, copy);
end

function line = of_caller ()
  y = zeros (3, 1);
  copy = y;
  add_to (y);
  line = qn.impl.host.written ('argument of the calling function', zeros (3, 1), y, copy);
end

function add_to (y)
  quarn ('tbbp', qn.pack (3 * eye (3)), [2; 2; 2], y);
end

function line = field ()
  s = struct ('y', zeros (3, 1));
  copy = s;
  quarn ('tbbp', qn.pack (3 * eye (3)), [2; 2; 2], s.y);
  line = qn.impl.host.written ('field s.y, zeros (3, 1)', zeros (3, 1), s.y, copy.y);
end

function line = scalar_field ()
  s = struct ('y', zeros (1, 1));
  copy = s;
  quarn ('tbbp', qn.pack (3), 2, s.y);
  line = qn.impl.host.written ('field s.y, zeros (1, 1)', 0, s.y, copy.y);
end

function line = element_of_array ()
  s = struct ('y', {zeros(3, 1), zeros(3, 1)});
  copy = s;
  quarn ('tbbp', qn.pack (3 * eye (3)), [2; 2; 2], s(2).y);
  line = qn.impl.host.written ('field s(2).y, zeros (3, 1)', zeros (3, 1), s(2).y, copy(2).y);
end

function line = cell_element ()
  c = {zeros(3, 1)};
  copy = c;
  quarn ('tbbp', qn.pack (3 * eye (3)), [2; 2; 2], c{1});
  line = qn.impl.host.written ('cell c{1}, zeros (3, 1)', zeros (3, 1), c{1}, copy{1});
end

function line = scalar_cell ()
  c = {zeros(1, 1)};
  copy = c;
  quarn ('tbbp', qn.pack (3), 2, c{1});
  line = qn.impl.host.written ('cell c{1}, zeros (1, 1)', 0, c{1}, copy{1});
end

function line = nested ()
  s = struct ('a', {{1, struct('y', zeros (3, 1))}});
  copy = s;
  quarn ('tbbp', qn.pack (3 * eye (3)), [2; 2; 2], s.a{2}.y);
  line = qn.impl.host.written ('s.a{2}.y, zeros (3, 1)', zeros (3, 1), s.a{2}.y, copy.a{2}.y);
end
