% Runs whose arrays lie on each other: each step reads and writes them in the stated order, whatever passes the run is made in.
%
% One mode, two loads, with or without an element. All arrays are slices of one vector, which the host does not copy; the plain integrator below works on the same places
% of a copy of that vector.
function tests = suite_newmark_shared_memory ()
  tests = localfunctions ();
end

function p = places ()
  p = struct ('u', 1, 'v', 3, 'a', 5, 'r', 7, 'tft', 11, 'data', 26, 'uva', 32, 'store', 36, 'snapshot', 39, 'times', 42, 'def', 45, ...
              'k', 48, 'c', 50, 'row', 52, 'act', 54, 'unl', 56, 'snl', 62, 'n', 65);
end

function m = memory (p)
  m = 0.25 + mod ((1:p.n)' * 7, 11) / 16;
  m(p.tft + (0:3:12)) = (0:4)' / 4;
  m(p.data + (0:5)) = [0.25 0.125 0.5 3 7 0];
  m(p.times + (0:2)) = [0.25; 0.75; 1];
end

function s = slice (m, first, rows, columns)
  s = reshape (m(first:first + rows * columns - 1), rows, columns);
end

% The run on the memory itself.
function integrate (m, p, stored)
  value = struct ('type', 2000, 'r', slice (m, p.r, 1, 4), 'tft', slice (m, p.tft, 3, 5), 'data', slice (m, p.data, 1, 6));
  one = struct ('ir', int32 (0), 'jc', int32 ([0; 1]), 'dims', [1 1]);
  stiffness = one;
  stiffness.type = 1;
  stiffness.pr = slice (m, p.k, 2, 1);
  damping = one;
  damping.type = 3;
  damping.pr = slice (m, p.c, 2, 1);
  mem = struct ('uva', struct ('uva', slice (m, p.uva, 4, 1)));
  model = struct ();
  if stored
    value.iopt = int32 (0);
    model.FNL = slice (m, p.store, 3, 1);
    mem.uva.FNL = slice (m, p.snapshot, 3, 1);
  end
  out = struct ('data', slice (m, p.times, 3, 1), 'def', slice (m, p.def, 1, 3));
  list = {value, stiffness, damping};
  if isfield (p, 'element'), list{4} = spring (m, p); end
  quarn ('chandlediagnewmark', list, model, slice (m, p.u, 1, 2), slice (m, p.v, 1, 2), slice (m, p.a, 1, 2), ...
         [0 0.5], mem, out);
end

% A spring of stiffness 2 on the mode. Its page has two values that it has no use for: from the end of a second page of three a step takes
% two values to the front.
function e = spring (m, p)
  line = struct ('ir', int32 (0), 'jc', int32 ([0; 1; 1; 1]), 'dims', [3 1], 'trans', 1);
  e = struct ('type', 1003, 'c', line, 'b', line, 'opt', [law_code('Power'); 2; 1]);
  e.c.pr = slice (m, p.row, 2, 1);
  e.b.pr = slice (m, p.act, 2, 1);
  e.unl = reshape (slice (m, p.unl, 6, 1), [3 1 2]);
  e.snl = slice (m, p.snl, 3, 1);
end

% The same with the definition's loop.
function m = plainly (m, p, stored)
  d = m(p.data + (0:4));
  cursor = 0;
  for j = 0:3
    t = m(p.tft + 3 * (j + 1));
    m(p.data + 5) = t;
    m(p.uva) = m(p.u);
    m(p.uva + 1) = m(p.v);
    m(p.uva + 2) = m(p.a);
    if stored
      m(p.snapshot + (0:2)) = m(p.store + (0:2));
      m(p.store + (0:1)) = m(p.tft + 3 * j + (1:2));
    end
    m(p.u) = (d(2) * m(p.a) + d(1) * m(p.v)) + m(p.u);
    m(p.v) = d(3) * m(p.a) + m(p.v);
    m(p.a) = 0;
    f = m(p.r + 1) * m(p.tft + 3 * j + 1) + m(p.r + 2) * m(p.tft + 3 * j + 2);
    m(p.uva + 3) = f;
    m(p.uva + 3) = m(p.uva + 3) + m(p.k) * (m(p.u) + 0.5 * m(p.v));
    m(p.uva + 3) = m(p.uva + 3) + m(p.c) * m(p.v);
    if isfield (p, 'element')
      m(p.unl + (0:2)) = [m(p.row) * m(p.u); 0; 0];
      m(p.snl + (0:2)) = 2 * m(p.unl + (0:2));
      m(p.uva + 3) = m(p.uva + 3) + m(p.act) * m(p.snl);
    end
    e = m(p.uva + 3) * m(p.r + 2);
    m(p.u) = m(p.u) - e;
    m(p.v) = m(p.v) - d(4) * e;
    m(p.a) = m(p.a) - e * d(5);
    if isfield (p, 'element'), m(p.unl + (0:1)) = m(p.unl + (4:5)); end
    while cursor < 3 && t > m(p.times + cursor), cursor = cursor + 1; end
    if cursor < 3 && t == m(p.times + cursor), m(p.def + cursor) = m(p.u); end
  end
end

function same (name, p, stored, places, values)
  m = memory (p);
  if nargin > 3, m(places) = values; end
  wanted = plainly (m, p, stored);
  integrate (m, p, stored);
  try
    expect_equal (m, wanted);
  catch err
    error ('%s: %s', name, err.message);
  end
end

% The array WHAT moved to each of the places.
function moved (what, onto, stored)
  p = places ();
  p.(what) = onto;
  same (sprintf ('%s at %d', what, onto), p, stored);
end

function test_arrays_apart ()
  same ('apart', places (), true);
  same ('apart', places (), false);
end

function test_state_on_the_loads ()
  p = places ();
  for what = {'u', 'v', 'a'}
    for column = 0:3, moved (what{1}, p.tft + 3 * column + 1, false); end
    for place = 1:2, moved (what{1}, p.r + place, false); end
  end
end

function test_state_on_the_diagonals ()
  p = places ();
  for what = {'u', 'v', 'a'}
    moved (what{1}, p.k, false);
    moved (what{1}, p.c, false);
  end
end

function test_state_on_the_coefficients ()
  p = places ();
  for what = {'u', 'v', 'a'}, moved (what{1}, p.data + 5, false); end
end

function test_state_on_the_work_array ()
  p = places ();
  moved ('u', p.uva + 1, false);
  moved ('u', p.uva + 2, false);
  moved ('v', p.uva, false);
  moved ('v', p.uva + 2, false);
  moved ('a', p.uva, false);
  moved ('a', p.uva + 1, false);
end

function test_state_on_the_force_store_and_its_snapshot ()
  p = places ();
  for what = {'u', 'v', 'a'}
    for place = 0:1
      moved (what{1}, p.store + place, true);
      moved (what{1}, p.snapshot + place, true);
    end
  end
end

function test_state_on_the_save_times_and_outputs ()
  p = places ();
  for what = {'u', 'v', 'a'}
    for place = 0:1
      moved (what{1}, p.times + place, false);
      moved (what{1}, p.def + place, false);
    end
  end
end

function test_save_time_that_the_state_brings_down_lets_the_next_one_come ()
  % 100 s is never due; after the first step it is a negative time.
  p = places ();
  for what = {'u', 'v', 'a'}
    on = p;
    on.(what{1}) = p.times;
    same ([what{1} ' at the first save time'], on, false, [p.times, p.times + 1, p.r + 2], [100 0.5 4]);
  end
end

function test_work_array_on_what_is_read ()
  p = places ();
  for place = [p.tft + (0:3:9), p.r, p.k, p.c - 1, p.times, p.data + 5]
    moved ('uva', place, false);
  end
end

function test_current_time_on_what_is_read ()
  p = places ();
  for place = [p.tft + 4, p.tft + 7, p.r + 1, p.k, p.c, p.times, p.times + 1], moved ('data', place - 5, false); end
end

% An array of the element moved to each of the places.
function of_the_element (what, onto, stored)
  p = places ();
  p.element = true;
  p.(what) = onto;
  same (sprintf ('%s of the element at %d', what, onto), p, stored);
end

function test_element_apart ()
  of_the_element ('row', 52, true);
  of_the_element ('row', 52, false);
end

function test_element_that_looks_at_the_copies_of_the_state ()
  p = places ();
  for k = 0:2
    for what = {'row', 'act', 'snl'}, of_the_element (what{1}, p.uva + k, false); end
  end
end

function test_element_that_ends_its_steps_in_the_loads_and_the_gain ()
  p = places ();
  for place = -1:1, of_the_element ('unl', p.r + place, false); end
end
