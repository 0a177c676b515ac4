% The checks that the tests are written with fail where they should.
function tests = suite_test_checks ()
  tests = localfunctions ();
end

function test_values_of_other_bits_differ ()
  others = {0, -0; single(0), single(-0); 1, single(1); 1, int32(1); 1, true; [1 2], [1; 2]; [], zeros(0, 1); 1, 1 + eps; ...
            complex(0, 0), complex(0, -0); complex(1, 0), 1; sparse(1), 1; 'a', 97; {}, []; {0}, {-0}; {1, {2, -0}}, {1, {2, 0}}; ...
            struct('a', 0), struct('a', -0); struct('a', 1), struct('b', 1); struct('a', 1), struct('a', {1, 1}); ...
            struct('a', {1, 2}), struct('a', {1, 3}); NaN, 0; int64(9007199254740993), int64(9007199254740992); @sin, @cos};
  for k = 1:size (others, 1)
    expect_error (@() expect_equal (others{k, :}), '', '~^expected ');
    expect_error (@() expect_equal (others{k, [2 1]}), '', '~^expected ');
  end
end

function test_the_same_bits_are_equal ()
  values = {0, -0, [NaN Inf -Inf -0], complex(-0, NaN), single(pi), zeros(0, 3), sparse([0 2; -1 0]), 'text', {1, {NaN, -0}}, ...
            struct('a', {1, {2}}), struct('x', {}), int8(-3), true, @sin, uint64(18446744073709551615)};
  for k = 1:numel (values), expect_equal (values{k}, values{k}); end
  expect_equal (struct ('a', 1, 'b', 2), struct ('b', 2, 'a', 1));
end

function test_a_difference_beyond_the_tolerance_is_told_with_its_place ()
  expect_equal ([1 2 100], [1 2 100 + 1e-8], 1e-9);
  expect_error (@() expect_equal ([1 2 3], [1 2 3.5], 1e-9), '', '~^off by 0.142857 at element 3 .*: expected 3.5, got 3$');
  expect_error (@() expect_equal (NaN, 1, 1), '', '~^off by NaN');
  expect_error (@() expect_equal ([1 2], [1; 2], 1), '', 'expected size [2 1], got [1 2]');
end

function test_a_pattern_that_any_text_matches_is_refused ()
  says = @() error ('quarn sum : expected 2 inputs');
  expect_error (says, '', '~^quarn sum : .*2');
  for vague = {'~', '~.', '~^quarn sum : ', '~^quarn sum : .*', '~expected|', '~(x|)$', '~2|u'}
    expect_error (@() expect_error (says, '', vague{1}), '', '~^the pattern ".*" matches any text; the text was "quarn sum');
  end
  expect_error (@() expect_error (@() error ('plain'), '', '~.*'), '', '~^the pattern ".\*" matches any text');
  expect_error (@() expect_error (@() error ('a{1, 2}'), '', '~a{1, 2}'), '', '~^the braces in the pattern "~a\{1, 2\}" need backslashes');
end

function test_another_error_or_none_is_told ()
  expect_error (@() expect_error (@() 1, '', 'text'), '', 'expected the error "text", nothing was raised');
  expect_error (@() expect_error (@() error ('other'), '', 'text'), '', 'expected the error "text", got "other"');
  expect_error (@() expect_error (@() error ('own:id', 'text'), '', 'text'), '', 'expected the identifier "", got "own:id"');
end
