% The entry: presence, command words, service commands.
function tests = suite_gateway ()
  tests = localfunctions ();
end

function test_presence_call_returns_1_0001 ()
  expect_equal (quarn (), 1.0001);
end

function test_presence_value_is_stored_also_without_an_output ()
  quarn ();
  expect_equal (ans, 1.0001);
end

function test_ismex_returns_1 ()
  expect_equal (quarn ('ismex'), 1);
end

function test_omp_returns_minus_1_whatever_the_arguments ()
  expect_equal (quarn ('omp'), -1);
  values = hostile_values ();
  for k = 1:numel (values)
    expect_equal (quarn ('omp', values{k}, values{end + 1 - k}), -1);
  end
end

function test_ismex_ignores_further_arguments ()
  values = hostile_values ();
  for k = 1:numel (values), expect_equal (quarn ('ismex', values{k}), 1); end
end

function test_cvs_returns_the_revision_string ()
  expect_equal (quarn ('cvs'), '$Revision: 1.38 $  $Date: 2018/05/15 16:21:58 $');
end

function test_version_tells_which_module_this_is ()
  values = hostile_values ();
  s = quarn ('version');
  expect_equal (fieldnames (s), {'version'; 'compiler'; 'host'; 'cblas'});
  expect_equal (regexp (s.version, '^\d+\.\d+\.\d+$'), 1);
  expect_equal (s.host, ['GNU Octave ' OCTAVE_VERSION()]);
  for name = {'compiler', 'cblas'}
    text = s.(name{1});
    if ~ischar (text) || isempty (text) || ~strcmp (text, strtrim (text)), error ('%s: "%s"', name{1}, text); end
  end
  for k = 1:numel (values), expect_equal (quarn ('version', values{k}), s); end
end

function test_nlv1_returns_nothing_and_changes_nothing ()
  s = struct ('unl', [1; 2; 3], 'other', {{4, 'text'}});
  before = struct ('unl', [1; 2; 3], 'other', {{4, 'text'}});
  quarn ('nlv1', s);
  expect_equal (s, before);
  returns_nothing (@() quarn ('nlv1', s));
end

function test_nlv1_takes_the_first_element_of_a_struct_array ()
  quarn ('nlv1', struct ('unl', {[1; 2], @sin}));
end

function test_nlv1_takes_a_field_of_any_class ()
  values = hostile_values ();
  for k = 1:numel (values)
    s = struct ();
    s.unl = values{k};
    quarn ('nlv1', s);
  end
end

function test_nlv1_survives_arguments_of_every_kind ()
  values = [{struct('vnl', 1)}, hostile_values()];
  for k = 1:numel (values), own_answer (@() quarn ('nlv1', values{k})); end
  own_answer (@() quarn ('nlv1'));
end

function test_command_words_match_exactly ()
  words = {'residuals', 'Residual', 'resid', 'ISMEX', 'isme', 'ismexx', ' ismex', 'ismex ', 'chandle', 'chandlegett', 'dtk', 'dtktt', ...
           'c<-a''*B', 'ta''*k*t', 'nlv', 'nlv11', 'Omp', 'CVS', 'tbb', 'tbbpp', 'quarn', '-1'};
  for k = 1:numel (words)
    expect_refused (@() quarn (words{k}), 'quarn : Unknown command');
    expect_refused (@() quarn (words{k}, 1, 2, 3), 'quarn : Unknown command');
  end
end

function test_an_empty_word_is_unknown ()
  expect_refused (@() quarn (''), 'quarn : Unknown command');
  expect_refused (@() quarn (char (zeros (0, 5))), 'quarn : Unknown command');
end

function test_a_very_long_word_is_unknown ()
  expect_refused (@() quarn (repmat ('ismex', 1, 100000)), 'quarn : Unknown command');
end

function test_a_word_is_read_column_by_column ()
  expect_equal (quarn ('ismex'.'), 1);
  expect_equal (quarn (reshape ('cvs', 1, 1, 3)), '$Revision: 1.38 $  $Date: 2018/05/15 16:21:58 $');
  expect_refused (@() quarn (['ismex'; 'ismex']), 'quarn : Unknown command');
end

function test_a_word_ends_at_its_first_zero ()
  expect_equal (quarn (['ismex' char(0) 'tail']), 1);
  expect_refused (@() quarn ([char(0) 'ismex']), 'quarn : Unknown command');
  for n = [50 57 58 59 63 64 1000 1e6]
    expect_equal (quarn (['ismex' char(0) repmat('x', 1, n)]), 1);
    expect_refused (@() quarn (['ismex' repmat('x', 1, n)]), 'quarn : Unknown command');
  end
end

function test_a_word_that_is_not_text_is_unknown ()
  values = hostile_values ();
  values = values(~cellfun (@ischar, values));
  values{end + 1} = double ('ismex');
  values{end + 1} = {'ismex'};
  values{end + 1} = uint8 ('ismex');
  for k = 1:numel (values)
    expect_refused (@() quarn (values{k}), 'quarn : Unknown command');
    expect_refused (@() quarn (values{k}, values{k}), 'quarn : Unknown command');
  end
end

function test_every_command_says_what_is_missing_when_called_without_arguments ()
  texts = {'residual', 'expected at least 6 inputs (command, r or handles, model, u, v, a), got 1'; ...
           'chandleset', 'expected 3 inputs (command, type, value), got 1'; ...
           'chandlediagnewmark', 'expected 9 inputs (command, list, model, u, v, a, opt, mem, out), got 1'; ...
           'setsparse', 'M, ir, jc and pr expected, got no operand'; 'c<-a''*b', 'a and b expected, got 0 operands'; ...
           'dtkt', 'b must be sparse'; 'abc', 'TA, k, TB and opt expected, got 0 operands'; 'ta''*k*tb', 'k must be sparse'; ...
           'tbbp', 'expected 4 inputs (command, A, x, y), got 1'};
  for k = 1:size (texts, 1)
    expect_refused (@() quarn (texts{k, 1}), ['quarn ' texts{k, 1} ' : ' texts{k, 2}]);
  end
end

function test_tbbp_adds_the_product_at_every_call ()
  a = sparse ([2 0 1; 0 3 0; 1 0 4]);
  m = matrix_lines (a);
  kept = matrix_lines (a);
  x = [1; 2; 3];
  y = 10 * ones (3, 1);
  quarn ('tbbp', m, x, y);
  expect_equal (y, [15; 16; 23]);
  quarn ('tbbp', m, x, y);
  expect_equal (y, [20; 22; 36]);
  expect_equal (m, kept);
  expect_equal (x, [1; 2; 3]);
  returns_nothing (@() quarn ('tbbp', m, x, y));
end

function test_tbbp_says_which_arguments_are_missing ()
  m = matrix_lines (speye (3));
  expect_refused (@() quarn ('tbbp', m), 'quarn tbbp : expected 4 inputs (command, A, x, y), got 2');
  expect_refused (@() quarn ('tbbp', m, zeros (3, 1)), 'quarn tbbp : expected 4 inputs (command, A, x, y), got 3');
end

function test_tbbp_survives_arguments_of_every_kind ()
  values = hostile_values ();
  good = {matrix_lines(speye (3)), ones(3, 1), zeros(3, 1)};
  for k = 1:numel (values)
    for at = 1:3
      args = good;
      args{3} = zeros (3, 1);
      args{at} = values{k};
      own_answer (@() quarn ('tbbp', args{:}));
    end
    own_answer (@() quarn ('tbbp', values{k}, values{k}, values{k}));
  end
end

function returns_nothing (fn)
  returned = true;
  try
    out = fn ();
  catch
    returned = false;
  end
  if returned, error ('expected no output, got %s', disp (out)); end
end
