function tests = suite_toolbox_table ()
  use_toolbox ();
  tests = localfunctions ();
end

function test_points_in_order_become_the_table_they_are ()
  [law, r] = qn.table ([0 1 2], [0 5 7]);
  expect_equal (law, qn.law ('table', 'displacement', [0 1 2], 'force', [0 5 7]));
  expect_equal ({r.points, r.knots, r.sorted, r.averaged, r.pooled, r.change}, {3, 3, 0, 0, 0, 0});
  expect_equal (r.text, '3 points, 3 knots');
end

function test_points_are_sorted_and_doubles_averaged ()
  [law, r] = qn.table ([0.3 0.1 0.1 0.2 0.1], [9 1 2 5 6]);
  expect_equal (law.parameters.displacement, [0.1; 0.2; 0.3]);
  expect_equal (law.parameters.force, [3; 5; 9]);
  expect_equal ({r.points, r.knots, r.sorted, r.averaged, r.change, r.at}, {5, 3, 2, 3, 3, 0.1});
  expect_equal (r.text, '5 points, 3 knots; sorted: 2 came before a smaller one; 3 averaged with others at their place; largest change 3 N, at 0.1 m');
  [law, r] = qn.table ([0 1 1.01 2], [0 4 6 8], 'merge', 0.02);
  expect_equal (law.parameters.displacement, [0; 1.005; 2]);
  expect_equal (law.parameters.force, [0; 5; 8]);
end

function test_a_monotonic_table_is_the_nearest_one ()
  [law, r] = qn.table ([0 1 2 3 4], [0 10 20 18 40], 'monotonic', 'rising');
  expect_equal (law.parameters.force, [0; 10; 19; 19; 40]);
  expect_equal ({r.pooled, r.change}, {2, 1});
  law = qn.table ([0 1 2 3 4], -[0 10 20 18 40], 'monotonic', 'falling');
  expect_equal (law.parameters.force, -[0; 10; 19; 19; 40]);
  % The closed form: the largest of the least means of what begins before and ends after a knot (Robertson, Wright and Dykstra, 1988).
  rand ('twister', 42);
  for k = 1:rounds (60)
    n = ceil (12 * rand ());
    x = ceil (10 * rand (1, n));
    f = round (20 * randn (1, n));
    law = qn.table (x, f, 'monotonic', 'rising');
    knots = unique (x);
    expect_equal (law.parameters.displacement, knots(:));
    expect_equal (law.parameters.force, nearest (x, f, knots), 1e-12);
  end
end

function y = nearest (x, f, knots)
  y = zeros (numel (knots), 1);
  for i = 1:numel (knots)
    best = -Inf;
    for j = 1:i
      least = Inf;
      for k = i:numel (knots), least = min (least, mean (f(x >= knots(j) & x <= knots(k)))); end
      best = max (best, least);
    end
    y(i) = best;
  end
end

function test_a_smoothed_table_is_no_longer_said_to_alternate ()
  x = 0:0.5:10;
  f = 10 * x + 9 * (-1) .^ (1:numel (x));
  model = qn.modal (1e4, 1, 'damping', 0.1);
  found = @(law) qn.check (qn.simulation (model, 'step', 1e-4, 'steps', 1000, 'v0', 1, 'elements', {law, qn.observe(model, 1)}));
  codes = @(law) arrayfun (@(c) c.code, found (law), 'uniformoutput', false);
  expect_equal (any (strcmp (codes (qn.table (x, f)), 'table_alternates')), true);
  expect_equal (any (strcmp (codes (qn.table (x, f, 'monotonic', 'rising')), 'table_alternates')), false);
end

function test_points_and_table_are_drawn_and_the_report_printed ()
  fig = qn.plot.page ();
  clean = onCleanup (@() close (fig));
  text = evalc ('qn.table ([0 2 1] * 1e-3, [0 20 11], ''plot'', true)');
  expect_in (text, '3 points, 3 knots; sorted: 1 came before a smaller one');
  lines = findobj (gca (), 'type', 'line');
  expect_equal (numel (lines), 2);
  expect_equal (reshape (get (lines(1), 'xdata'), [], 1), [0; 1; 2], 1e-12);
  expect_equal (get (get (gca (), 'xlabel'), 'string'), 'Displacement [mm]');
end

function test_wrong_points_are_refused ()
  expect_error (@() qn.table ([1 2], 1), 'qn:input', '~"F" must be 2 values, one a displacement');
  expect_error (@() qn.table (1), 'qn:input', '~displacements and forces expected');
  expect_error (@() qn.table ([1 2], [1 2], 'monotonic', 'up'), 'qn:input', '~"monotonic" is ''none'', ''rising'' or ''falling''');
  expect_error (@() qn.table ([1 2], [1 2], 'merge', -1), 'qn:input', '~"merge" must be at least 0');
  % A distance in mm, taken for m.
  expect_error (@() qn.table ([0 3 1] * 1e-3, [1 2 3], 'merge', 0.1), 'qn:input', ...
                'qn.table: "merge" of 0.1 m takes all 3 points, from 0 to 0.003 m, for one; give a shorter distance');
  law = qn.table ([2 2], [1 3], 'merge', 0.1);
  expect_equal (law.parameters.force, 2);
end
