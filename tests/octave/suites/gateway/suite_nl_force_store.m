% The force store "FNL" of a model with a nonlinear list.
function tests = suite_nl_force_store ()
  tests = localfunctions ();
end

function test_force_store_starts_at_the_zero_based_offset ()
  e = two_dof_element ();
  e.Fu = @twice_unl;
  e.StoreFNL = 1;
  e.FInd = int32 (4);
  model = nl_model (e);
  model.FNL = zeros (8, 1) + 1;
  r = zeros (4, 1);
  add_model (r, model, [1; 2; 3; 4], zeros (4, 1));
  expect_equal (model.FNL, [1; 1; 1; 1; 2; 6; 1; 1]);
  expect_equal (r, [2; 0; 6; 0]);
end

function test_store_flag_counts_nan_as_set_and_zero_as_unset ()
  flags = [0 1 NaN -2];
  for k = 1:numel (flags)
    e = two_dof_element ();
    e.Fu = @twice_unl;
    e.StoreFNL = flags(k);
    model = nl_model (e);
    model.FNL = zeros (2, 1);
    add_model (zeros (4, 1), model, [1; 2; 3; 4], zeros (4, 1));
    expect_equal (model.FNL, [2; 6] * double (k > 1));
  end
end

function test_forces_beyond_the_store_are_left_out ()
  offsets = {int32(3), int32(-1), int32(90)};
  wanted = {[7; 7; 7; 2], [6; 7; 7; 7], [7; 7; 7; 7]};
  for k = 1:3
    e = two_dof_element ();
    e.Fu = @twice_unl;
    e.StoreFNL = 1;
    e.FInd = offsets{k};
    model = nl_model (e);
    model.FNL = zeros (4, 1) + 7;
    r = zeros (4, 1);
    add_model (r, model, [1; 2; 3; 4], zeros (4, 1));
    expect_equal (model.FNL, wanted{k});
    expect_equal (r, [2; 0; 6; 0]);
  end
end

function test_store_takes_the_rows_of_the_force_only ()
  e = rmfield (two_dof_element (), 'b');
  e.Fu = @(e, varargin) [1 2; 3 4; 5 6];
  e.StoreFNL = 1;
  model = nl_model (e);
  model.FNL = zeros (6, 1);
  add_model (zeros (4, 1), model, ones (4, 1), zeros (4, 1));
  expect_equal (model.FNL, [1; 3; 5; 0; 0; 0]);
end

function test_store_without_a_place_in_the_model_is_left_out ()
  e = rmfield (two_dof_element (), 'FInd');
  e.Fu = @twice_unl;
  e.StoreFNL = 1;
  r = zeros (4, 1);
  add_model (r, nl_model (e), [1; 2; 3; 4], zeros (4, 1));
  expect_equal (r, [2; 0; 6; 0]);
end
