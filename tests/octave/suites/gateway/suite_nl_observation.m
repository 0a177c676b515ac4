% How the observation buffers "unl" and "vnl" of a nonlinear element are refreshed.
function tests = suite_nl_observation ()
  tests = localfunctions ();
end

% Two observations of three DOFs, no force.
function e = element ()
  e = struct ('c', matrix_lines ([1 0 2; 0 3 0], true), 'type', '');
end

function b = buffer (varargin)
  b = zeros (varargin{:});
  b(:) = 100 + (1:numel (b));
end

function observe (e, varargin)
  quarn ('residual', zeros (3, 1), nl_model (e), [1; 2; 3], [10; 20; 30], [], varargin{:});
end

function test_buffer_without_initial_content_is_zeroed_first ()
  e = element ();
  e.unl = buffer (2, 1);
  e.vnl = buffer (2, 1);
  observe (e);
  expect_equal (e.unl, [7; 6]);
  expect_equal (e.vnl, [70; 60]);
end

function test_observation_comes_on_top_of_the_initial_content ()
  e = element ();
  e.unl = buffer (2, 1);
  e.unl0 = [1000; 2000];
  e.vnl = buffer (2, 1);
  e.vnl0 = [1; 2];
  observe (e);
  observe (e);
  expect_equal (e.unl, [1007; 2006]);
  expect_equal (e.vnl, [71; 62]);
  expect_equal (e.unl0, [1000; 2000]);
end

function test_empty_initial_content_counts_as_none ()
  e = element ();
  e.unl = buffer (2, 1);
  e.unl0 = [];
  observe (e);
  expect_equal (e.unl, [7; 6]);
end

function test_values_beyond_the_observations_get_their_initial_content ()
  e = element ();
  e.unl = buffer (4, 1);
  e.unl0 = [1; 2; 3; 4];
  e.vnl = buffer (3, 2);
  observe (e);
  expect_equal (e.unl, [8; 8; 3; 4]);
  expect_equal (e.vnl, [70 0; 60 0; 0 0]);
end

function test_full_observation_matrix_overwrites_the_initial_content ()
  e = element ();
  e.c = [1 0 2; 0 3 0];
  e.unl = buffer (2, 1);
  e.unl0 = [1000; 2000];
  observe (e);
  expect_equal (e.unl, [7; 6]);
end

function test_matrix_in_an_object_observes ()
  e = element ();
  e.c = v_handle (e.c);
  e.unl = buffer (2, 1);
  observe (e);
  expect_equal (e.unl, [7; 6]);
end

function test_matrix_without_values_leaves_the_initial_content ()
  e = element ();
  e.c = struct ('dims', [2 3]);
  e.unl = buffer (2, 1);
  e.vnl = buffer (2, 1);
  e.vnl0 = [4; 5];
  observe (e);
  expect_equal (e.unl, [0; 0]);
  expect_equal (e.vnl, [4; 5]);
end

function test_sparse_matrices_without_entries_observe_and_add_nothing ()
  e = element ();
  e.c = matrix_lines (sparse (2, 3), true);
  e.b = matrix_lines (sparse (1, 3), true);
  e.unl = buffer (2, 1);
  e.Fu = @(varargin) 4;
  e.StoreFNL = 0;
  r = fresh ([1; 2; 3]);
  quarn ('residual', r, nl_model (e), [1; 2; 3], [0; 0; 0], [], [], []);
  expect_equal (e.unl, [0; 0]);
  expect_equal (r, [1; 2; 3]);
end

function test_buffers_without_elements_need_no_matrix ()
  e = struct ('type', '', 'unl', zeros (0, 1), 'vnl', []);
  observe (e);
  expect_equal (e.unl, zeros (0, 1));
end

function test_pages_of_the_buffer_do_not_count_for_a_plain_structure ()
  e = element ();
  e.unl = buffer (2, 1, 3);
  e.vnl = buffer (2, 1, 3);
  e.opt = [0 -1];
  observe (e);
  expect_equal (e.unl(:), [7; 6; 103; 104; 105; 106]);
  expect_equal (e.vnl(:), [70; 60; 103; 104; 105; 106]);
end

function test_initial_content_does_not_count_for_paged_buffers ()
  e = element ();
  e.unl = buffer (2, 1, 2);
  e.unl0 = [1000; 2000];
  observe (e);
  expect_equal (e.unl(:), [7; 6; 103; 104]);
end

function test_page_two_is_the_source_for_a_structure_of_two_pages ()
  e = element ();
  e.unl = buffer (2, 1, 3);
  e.vnl = buffer (2, 1, 2);
  e.opt = [0 -1];
  e = repmat (e, [1 1 2]);
  observe (e);
  expect_equal (e(1).unl(:), [110; 110; 103; 104; 105; 106]);
  expect_equal (e(1).vnl(:), [173; 164; 103; 104]);
end

function test_two_dimensional_buffers_ignore_the_pages_of_the_structure ()
  e = element ();
  e.unl = buffer (2, 3);
  e.opt = [0 -1];
  e = repmat (e, [1 1 3]);
  observe (e);
  expect_equal (e(1).unl(:), [7; 6; 0; 0; 0; 0]);
end

function test_negative_switching_keeps_page_one_in_page_three ()
  e = three_pages ([0 -1]);
  observe (e);
  expect_equal (e(1).vnl(:), [173; 164; 103; 104; 101; 102]);
  expect_equal (e(1).unl(:), [110; 110; 103; 104; 101; 102]);
end

function test_switching_of_zero_or_more_leaves_page_three ()
  factors = {[0 0], [0 2], [0 NaN], -5, [], [0 -0]};
  for k = 1:numel (factors)
    e = three_pages (factors{k});
    observe (e);
    expect_equal (e(1).vnl(:), [173; 164; 103; 104; 105; 106]);
    expect_equal (e(1).unl(:), [110; 110; 103; 104; 105; 106]);
  end
end

function test_switching_time_is_relative_to_tc ()
  e = three_pages ([0 3]);
  observe (e, struct ('tc', 3));
  expect_equal (reshape (e(1).vnl(5:6), [], 1), [105; 106]);
  observe (e, struct ('tc', 3.5));
  expect_equal (e(1).vnl(:), [173; 164; 103; 104; 173; 164]);
  e = three_pages ([0 -1]);
  observe (e, struct ('tc', -2));
  expect_equal (e(1).unl(:), [110; 110; 103; 104; 105; 106]);
  observe (e, [0 0]);
  expect_equal (e(1).unl(:), [110; 110; 103; 104; 110; 110]);
end

function test_switching_is_read_with_the_velocity_buffer_only ()
  e = rmfield (three_pages ([0 -1]), 'vnl');
  observe (e);
  expect_equal (e(1).unl(:), [110; 110; 103; 104; 105; 106]);
  e = three_pages ([0 -1]);
  e(1).vnl = buffer (2, 1);
  observe (e);
  expect_equal (e(1).unl(:), [110; 110; 103; 104; 105; 106]);
end

function test_structure_without_opt_does_not_switch ()
  e = rmfield (three_pages ([0 -1]), 'opt');
  observe (e);
  expect_equal (e(1).unl(:), [110; 110; 103; 104; 105; 106]);
end

function test_page_length_is_rows_times_columns ()
  e = element ();
  e.unl = buffer (2, 2, 2);
  e = repmat (e, [1 1 2]);
  observe (e);
  expect_equal (e(1).unl(:), [112; 112; 107; 108; 105; 106; 107; 108]);
end

function test_product_with_more_rows_than_a_page_goes_on_in_the_next_one ()
  e = element ();
  e.c = matrix_lines ([1 0 2; 0 3 0; 0 0 1], true);
  e.unl = buffer (2, 1, 2);
  observe (e);
  expect_equal (e.unl(:), [7; 6; 103 + 3; 104]);
  e.unl = buffer (2, 1, 1);
  expect_error (@() observe (e), '', '~the observation must hold 3 values');
end

function test_further_extents_do_not_lengthen_a_page ()
  e = element ();
  e.unl = buffer (2, 1, 2, 2);
  e = repmat (e, [1 1 2]);
  observe (e);
  expect_equal (e(1).unl(:), [110; 110; 103; 104; 105; 106; 107; 108]);
end

function e = three_pages (opt)
  e = element ();
  e.unl = buffer (2, 1, 3);
  e.vnl = buffer (2, 1, 3);
  e.opt = opt;
  e = repmat (e, [1 1 3]);
end
