% Writable arrays handed over as objects whose property "c" holds the address of a buffer.
function tests = suite_buffer_addresses ()
  tests = localfunctions ();
end

function test_the_residual_is_added_into_the_buffer_of_an_object ()
  m = matrix_lines (sparse ([2 0; 1 3]));
  k = matrix_lines (sparse ([5 0; 0 7]));
  buffer = fresh ([100; 200]);
  quarn ('residual', holder (buffer), {m, m, k}, [1; 10], [0; 0], [1; 2]);
  expect_equal (buffer, [100 + 2 + 2 + 5; 200 + 6 + 70]);
end

function test_handles_add_into_the_buffer_of_an_object ()
  h = registered ({typed(1, sparse ([5 1; 1 7]))});
  buffer = fresh ([0.5; 0.25]);
  quarn ('residual', holder (buffer), h, [1; 10], [0; 0], [0; 0]);
  expect_equal (buffer, [15.5; 71.25]);
end

function test_a_nonlinear_list_adds_into_the_buffer_of_an_object ()
  b = matrix_lines (speye (2), true);
  model = nl_model (struct ('Fu', @(varargin) [3; 4], 'b', b, 'StoreFNL', 0));
  buffer = fresh ([1; 1]);
  quarn ('residual', holder (buffer), model, [0; 0], [0; 0], [], [], []);
  expect_equal (buffer, [4; 5]);
end

function test_forces_go_into_the_buffer_of_an_object ()
  buffer = fresh ([-1; -1; -1]);
  e = square_law (zeros (2, 1), [], holder (buffer));
  expect_equal (residual_of (e), [9; 16]);
  expect_equal (buffer, [9; 16; -1]);
end

% The object counts as one value: one is cleared before the observation and goes through the law, but the product reaches all rows of c.
function test_displacements_are_observed_in_the_buffer_of_an_object ()
  buffer = fresh ([-1; -1]);
  e = square_law (holder (buffer), [], zeros (2, 1));
  expect_equal (residual_of (e), [9; 0]);
  expect_equal (buffer, [3; -1 + 4]);
end

function test_forces_replace_the_displacement_in_the_buffer_of_an_object ()
  buffer = fresh ([-1; -1]);
  e = square_law (holder (buffer), [], []);
  e.b.pr(2) = 0;
  expect_equal (residual_of (e), [9; 0]);
  expect_equal (buffer, [9; -1 + 4]);
end

function test_velocities_are_observed_in_the_buffer_of_an_object ()
  buffer = fresh ([-1; -1; -1]);
  e = square_law (zeros (2, 1), holder (buffer), zeros (2, 1));
  expect_equal (residual_of (e), [9; 16]);
  expect_equal (buffer, [30; 40; -1]);
end

function test_maxwell_rates_are_committed_in_the_buffer_of_an_object ()
  w = struct ('Cu', [7 8 9], 'Dv', [10 11 12], 'B', [2 3], 'A', 4, 'E', [5 6]);
  e = maxwell_element (2, 1, 1, 0.5, 1, w);
  e.vnl(5:6) = [0.3 0.4];
  plain = evaluate_law (e, [1; 99], [2; 98]);
  % The last rate lands one value past the pages: an array drops it, a buffer must have room for it.
  buffer = fresh ([e.vnl(:); -1]);
  e.vnl = holder (buffer);
  evaluate_law (e, [1; 99], [2; 98]);
  expect_equal (buffer, [plain.vnl(:); plain.vnl(3)]);
end

function test_the_integrator_takes_elements_with_buffers ()
  run = small_run ();
  plain = fresh (run);
  plain.list{4} = spring_element ([1 2], [1 -1], 3, [law_code('Power'); 2; 3]);
  run.list{4} = plain.list{4};
  forces = fresh (-1);
  speed = fresh (-1);
  run.list{4}.snl = holder (forces);
  run.list{4}.vnl = holder (speed);
  quarn ('chandlediagnewmark', plain.list, plain.model, plain.u, plain.v, plain.a, plain.opt, plain.mem, plain.out);
  quarn ('chandlediagnewmark', run.list, run.model, run.u, run.v, run.a, run.opt, run.mem, run.out);
  expect_equal (run.u, plain.u);
  expect_equal (run.out, plain.out);
  expect_equal (forces, plain.list{4}.snl);
  expect_equal (speed, plain.list{4}.vnl);
end

function test_indices_are_looked_at_once_a_buffer_has_come ()
  e = square_law (buffer_behind_handle (uint64 (0)), [], zeros (2, 1));
  unlucky = e.unl;
  e.c.ir(2) = int32 (900000000);
  h = registered ({e});
  u = [3; 4] * 1;
  quarn ('residual', zeros (2, 1), h, u, u, u);
  buffer = zeros (2, 1);
  unlucky.c = address_of (buffer);
  expect_refused (@() quarn ('residual', zeros (2, 1), h, u, u, u), 'quarn residual : element 1 : c : index 900000000 in "ir" reaches past u of 2 values');
end

function h = holder (buffer)
  h = buffer_holder (address_of (buffer));
end

% Two observed values q, forces q.^2, each to its own row of the residual; an empty array leaves its field out.
function e = square_law (unl, vnl, snl)
  unit = fresh (matrix_lines (speye (2), true));
  e = struct ('type', 1003, 'c', fresh (unit), 'b', unit, 'opt', [law_code('Power') 1 2], 'unl', unl);
  if ~isempty (vnl), e.vnl = vnl; end
  if ~isempty (snl), e.snl = snl; end
end

function r = residual_of (e)
  r = zeros (2, 1);
  quarn ('residual', r, registered ({e}), [3; 4], [30; 40], [0; 0]);
end
