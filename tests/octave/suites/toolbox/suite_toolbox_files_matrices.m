% Matrices in the file formats of other programs: Harwell-Boeing, coordinate text, Matrix Market.
function tests = suite_toolbox_files_matrices ()
  use_toolbox ();
  tests = localfunctions ();
end

function k = demo ()
  k = [4 -1 0; -1 3 -2; 0 -2 5];
end

function varargout = read (reader, bytes)
  [file, clean] = put_bytes (bytes);
  [varargout{1:nargout}] = reader (file);
end

function test_a_symmetric_matrix_and_its_load_are_read_from_harwell_boeing ()
  [a, info] = read (@qn.read_hb, sample_of ('hb'));
  expect_equal (full (a), demo ());
  expect_equal (issparse (a), true);
  expect_equal (info.right, [1; 0; -2]);
  expect_equal ({info.key, info.type, info.title}, {'DEMO3', 'RSA', '3-DOF demo stiffness, lower triangle'});
  expect_equal ({info.guess, info.node}, {[], []});
end

function test_element_matrices_of_harwell_boeing_are_added_up ()
  expect_equal (full (read (@qn.read_hb, sample_of ('hb elements'))), [2 -2 0; -2 5 -3; 0 -3 3]);
end

function test_the_same_file_of_another_system_reads_the_same ()
  crlf = strrep (sample_of ('hb'), char (10), char ([13 10]));
  expect_equal (full (read (@qn.read_hb, crlf)), demo ());
  expect_equal (full (read (@qn.read_hb, strrep (crlf, char (10), ''))), demo ());
  good = sample_of ('hb');
  expect_equal (full (read (@qn.read_hb, [char([239 187 191]), good(1:end - 1)])), demo ());
end

% Fortran: fields without blanks between them, no letter before the exponent, one number a line, free spacing.
function test_fortran_fields_are_read_as_they_are_written ()
  tight = sample_of ('hb', '(1P,3D15.7)         (1P,3D15.7)', '(1P,3D14.7)         (1P,3D15.7)', ...
                     '  4.0000000D+00 -1.0000000D+00  3.0000000D+00', ' 4.0000000D+00-1.0000000D+00 3.0000000D+00', ...
                     ' -2.0000000D+00  5.0000000D+00', '-2.0000000D+00 5.0000000D+00');
  expect_equal (full (read (@qn.read_hb, tight)), demo ());
  bare = sample_of ('hb', '  4.0000000D+00', ' 400.000000000-2', '-1.0000000D+00', '      -1.q+000');
  expect_equal (full (read (@qn.read_hb, bare)), demo ());
  single = sample_of ('hb', '             5             1             1             2             1', ...
                      '             8             1             1             5             1', '(1P,3D15.7)         (1P', '(D25.15)            (1P', ...
                      '  4.0000000D+00 -1.0000000D+00  3.0000000D+00', sprintf ('%25s\n%25s\n%25s', '4.0D0', '-1.0D0', '3.0D0'), ...
                      ' -2.0000000D+00  5.0000000D+00', sprintf ('%25s\n%25s', '-2.0D0', '5.0D0'));
  expect_equal (full (read (@qn.read_hb, single)), demo ());
  free = sample_of ('hb', '  4.0000000D+00 -1.0000000D+00  3.0000000D+00', '4.0 -1.0 3.0');
  expect_equal (full (read (@qn.read_hb, strrep (free, '1P,3D15.7)', '3D15.7)   '))), demo ());
end

function test_random_matrices_come_back_through_harwell_boeing ()
  rand ('twister', 42);
  for k = 1:rounds (30)
    n = ceil (8 * rand ());
    m = n;
    kind = 'RUA';
    symmetric = mod (k, 3) == 1;
    if symmetric, kind = 'RSA'; end
    if mod (k, 3) == 2, m = ceil (8 * rand ()); kind = 'RRA'; end
    a = sprand (n, m, 0.4);
    if symmetric, a = a + a.' + speye (n); end
    stored = a;
    if symmetric, stored = tril (a); end
    expect_equal (full (read (@qn.read_hb, as_hb (stored, kind))), full (a));
  end
end

% A matrix with 17 digits in an independent plain writer.
function bytes = as_hb (a, kind)
  [i, j, v] = find (a);
  p = cumsum ([1, full(sum (a ~= 0, 1))]);
  lines = @(count) ceil (count / 2);
  blocks = [lines(numel (p)), lines(numel (v)), lines(numel (v))];
  bytes = sprintf ('%-80s\n%14d%14d%14d%14d%14d\n%-14s%14d%14d%14d%14d\n%-16s%-16s%-20s%-20s\n', 'random', sum (blocks), blocks, 0, kind, ...
                   size (a), numel (v), 0, '(2I7)', '(2I7)', '(1P,2E25.16)', '');
  bytes = [bytes, two('%7d', p), two('%7d', i(:).'), two('%25.16E', v(:).')];
end

function text = two (format, x)
  text = sprintf ([format format '\n'], x);
  if mod (numel (x), 2), text = [text(1:end), char(10)]; end
  text = strrep (text, char ([10 10]), char (10));
  if isempty (x), text = ''; end
end

function test_complex_skew_and_pattern_matrices_are_read ()
  skew = sample_of ('hb', 'RSA                        3             3             5', 'rza                        3             3             2', ...
                    '    1    3    5    6', '    1    2    3    3', '    1    2    2    3    3', '    2    3', ...
                    '             5             1             1             2             1', ...
                    '             4             1             1             1             1', ...
                    '  4.0000000D+00 -1.0000000D+00  3.0000000D+00', '  7.0000000D+00 -1.5000000D+00', [char(10) ' -2.0000000D+00  5.0000000D+00'], '');
  expect_equal (full (read (@qn.read_hb, skew)), [0 -7 0; 7 0 1.5; 0 -1.5 0]);
  pattern = sample_of ('hb', 'RSA', 'PSA', '             5             1             1             2             1', ...
                       '             2             1             1             0             0', ['F                          1             0' char(10)], '');
  pattern = pattern(1:strfind (pattern, '  4.0000000D+00') - 1);
  expect_equal (full (read (@qn.read_hb, pattern)), double (demo () ~= 0));
end

function test_the_mapping_file_names_the_equations ()
  [file, clean] = put_bytes (sample_of ('hb'));
  map = sprintf ('    Matrix Eqn          Node    DOF     \n%14d%14d    %-4s\n%14d%14d    %-4s\n%14d%14d    %-4s\n', 1, 12, 'UX', 2, 12, 'ROTY', 3, 7, 'UZ');
  [named, clean2] = put_bytes (map);
  [unused, info] = qn.read_hb (file, 'mapping', named);
  expect_equal (info.node, [12; 12; 7]);
  expect_equal (info.label, {'UX'; 'ROTY'; 'UZ'});
  expect_bad_file (@(f) qn.read_hb (file, 'mapping', f), strrep (map, '  2    ', '  9    '), 'line 3: equation 9; equation 2 expected');
  expect_bad_file (@(f) qn.read_hb (file, 'mapping', f), map(1:end - 40), 'ends early');
  expect_bad_file (@(f) qn.read_hb (file, 'mapping', f), [map map(42:73)], 'line 5: more than the 3 equations');
  expect_bad_file (@(f) qn.read_hb (file, 'mapping', f), 'x', 'line 1: "x"; the title');
end

function test_bad_harwell_boeing_files_are_refused_with_their_line ()
  bad = @(pattern, varargin) expect_bad_file (@qn.read_hb, sample_of ('hb', varargin{:}), pattern);
  bad ('line 3: the type is "XSA"', 'RSA', 'XSA');
  bad ('line 4: PTRFMT is "\(4X5\)"', '(4I5)', '(4X5)');
  bad ('line 6, ?|line 6: pointer 3 is 2', '    1    3    5    6', '    1    3    2    6');
  bad ('line 7: number 5 of row indices is 4; whole numbers from 1 to 3', '    1    2    2    3    3', '    1    2    2    3    4');
  bad ('line 7: number 5 of row indices is "x"', '    1    2    2    3    3', '    1    2    2    3    x');
  bad ('line 7: the entry \(2, 1\) comes twice', '    1    2    2    3    3', '    2    2    2    3    3');
  bad ('line 7: the entry \(2, 1\) is -1 on one side and 3 on the other', '    1    2    2    3    3', '    1    2    1    3    3');
  bad ('line 8: number 1 of values is "\*+"', '  4.0000000D+00', ' **************');
  bad ('line 8: number 1 of values is "NaN"', '  4.0000000D+00', '            NaN');
  bad ('line 8: number 1 of values is "40000": without point or exponent', '  4.0000000D+00', '          40000');
  bad ('line 8: number 1 of values is "4.0": without point or exponent', '  4.0000000D+00', '            4.0');
  bad ('line 9: number 5 of 5 of values is missing', ' -2.0000000D+00  5.0000000D+00', ' -2.0000000D+00');
  bad ('line 9: 5 numbers of values expected, got more', ' -2.0000000D+00  5.0000000D+00', ' -2.0000000D+00  5.0000000D+00  5.0000000D+00');
  bad ('line 2: 3 lines of values', '             5             1             1             2', '             6             1             1             3');
  bad ('line 5: the type of the right-hand sides is "M', [char(10) 'F   '], [char(10) 'M   ']);
  bad ('line 3: NNZERO is 5000000', '             5             0', '       5000000             0');
  bad ('line 6: a tab', '    1    3', ['    1' char(9) '  3']);
  good = sample_of ('hb');
  expect_bad_file (@qn.read_hb, good(1:470), 'ends early|is missing');
  expect_error (@() qn.read_hb ('no such file'), 'qn:input', '~cannot open no such file');
  expect_error (@() qn.read_hb (pwd ()), 'qn:input', '~it is a folder');
  expect_error (@() qn.read_hb (3), 'qn:input', '~"FILE" must be the name of a file');
  expect_error (@() read (@qn.read_hb, ''), 'qn:input', '~is empty');
end

% The exponent of the last number of a line lost its last digit, and 3e+12 became 3e+1.
function test_numbers_that_go_on_right_of_their_columns_are_refused ()
  bad = @(pattern, varargin) expect_bad_file (@qn.read_hb, sample_of ('hb', varargin{:}), pattern);
  bad ('line 8: "2" right of column 45, where the values end', '  3.0000000D+00', '   3.0000000D+12');
  bad ('line 8: "7.0" right of column 45, where the values end', '  3.0000000D+00', '  3.0000000D+00 7.0');
  named = sample_of ('hb', '  3.0000000D+00', '  3.0000000D+00           CARD 7');
  expect_equal (full (read (@qn.read_hb, named)), demo ());
end

function test_numbers_outside_of_their_columns_are_read_and_said ()
  % Octave 11 keeps warnings that are turned off as the last one, so what is printed is looked at.
  said = evalc ('a = read (@qn.read_hb, sample_of (''hb'', ''-1.0000000D+00  3.0000000D+00'', ''-1.0000000D+009 3.0000000D+00''));');
  expect_equal (full (a), [4 -1e9 0; -1e9 3 -2; 0 -2 5]);
  expect_in (said, 'line 8: the values do not stand in the columns of their format; they are read as numbers with blanks between them');
end

function test_a_symmetric_matrix_in_parts_of_both_triangles_is_refused ()
  expect_bad_file (@qn.read_hb, sample_of ('hb', '    1    2    2    3    3', '    1    2    2    3    1'), ...
                   'line 7: the entry \(1, 3\) is above the diagonal, others of the symmetric matrix are below it');
end

% The host reads "--1" as 1.
function test_two_signs_before_a_number_are_none ()
  expect_bad_file (@qn.mmread, sample_of ('mm', '2 1 -1', '2 1 --1'), 'line 5: .*"--1" is not a finite number');
  expect_bad_file (@qn.mmread, sample_of ('mm', '2 1 -1', '2 1 +-1'), 'line 5: .*"\+-1" is not a finite number');
  expect_equal (full (read (@qn.mmread, sample_of ('mm', '2 1 -1', '2 1 -1e+0'))), demo ());
end

function test_a_wrong_total_of_lines_is_said_and_not_needed ()
  text = evalc ('a = read (@qn.read_hb, sample_of (''hb'', ''             5             1'', ''             9             1''));');
  expect_equal (full (a), demo ());
  expect_in (text, 'TOTCRD is 9, the other four add up to 5');
end

function test_entries_by_node_are_ordered_and_mirrored ()
  [a, dofs] = read (@qn.read_coordinates, sample_of ('dofs'));
  expect_equal (full (a), demo ());
  expect_equal (dofs, struct ('node', [12; 12; 30], 'dof', [1; 2; 1], 'huge', false (3, 1)));
  [a, dofs] = read (@qn.read_coordinates, sprintf ('-3,1,-3,1,1d36\n7,2,7,2,2.\n-3,1,7,2,.5\n7,2,-3,1,.5,\n'));
  expect_equal (full (a), [2 0.5; 0.5 1e36]);
  expect_equal (dofs, struct ('node', [7; -3], 'dof', [2; 1], 'huge', [false; true]));
  [a, dofs] = read (@qn.read_coordinates, sprintf ('P.1,1, P.1,1, 2.0\nP.1,1, Q.1,1, 3.0\nQ.1,1,Q.1,1,1.0'));
  expect_equal (full (a), [2 3; 3 1]);
  expect_equal (dofs.node, {'P.1'; 'Q.1'});
end

function test_unsymmetric_and_repeated_entries_are_what_the_caller_says ()
  text = sprintf ('1,1,1,1,1.0\n1,1,1,2,5.0\n1,2,1,1,6.0\n');
  expect_equal (full (read (@(f) qn.read_coordinates (f, 'symmetric', false), text)), [1 5; 6 0]);
  expect_equal (full (read (@qn.read_coordinates, [sprintf('*MATRIX INPUT, TYPE=UNSYMMETRIC\n') text])), [1 5; 6 0]);
  expect_bad_file (@qn.read_coordinates, text, 'line \d: the entry \(\d, \d\) is \d on one side and \d on the other');
  expect_bad_file (@qn.read_coordinates, [text text(1:12)], 'line 4: the entry \(1, 1\) comes twice');
  expect_equal (full (read (@(f) qn.read_coordinates (f, 'symmetric', false, 'repeated', 'add'), [text text(1:12)])), [2 5; 6 0]);
end

function test_rows_and_columns_are_read_with_and_without_sizes ()
  rows = sample_of ('rows');
  expect_equal (full (read (@(f) qn.read_coordinates (f, 'form', 'rows', 'symmetric', true), rows)), demo ());
  expect_equal (full (read (@(f) qn.read_coordinates (f, 'form', 'rows'), rows)), tril (demo ()));
  [list, clean] = put_bytes (sprintf ('5.1\n5.10\n7.2\n'));
  [a, dofs] = read (@(f) qn.read_coordinates (f, 'form', 'rows', 'dofs', list), rows);
  expect_equal (dofs, struct ('node', [5; 5; 7], 'dof', [1; 10; 2], 'huge', false (3, 1)));
  expect_equal (full (read (@(f) qn.read_coordinates (f, 'form', 'sized'), sprintf ('2 3 1\n2 3 4.5\n'))), [0 0 0; 0 0 4.5]);
  bad = @(text, pattern, varargin) expect_bad_file (@(f) qn.read_coordinates (f, varargin{:}), text, pattern);
  bad (rows, 'line 1: 3 fields|line 1: 1 fields; the form ''dofs'' has 5');
  bad (sprintf ('2 3 2\n2 3 4.5\n'), 'line 2: 2 entries announced, got 1', 'form', 'sized');
  bad (sprintf ('2 3 1\n2 4 4.5\n'), 'line 2: row 2, column 4; rows from 1 to 2 and columns from 1 to 3', 'form', 'sized');
  bad (sprintf ('0 1 4.5\n'), 'line 1: row 0, column 1.*written with numbers from 0', 'form', 'rows');
  bad (sprintf ('1 1 4.5\n1 2\n'), 'line 2: 2 fields, the lines before have 3: "1 2"', 'form', 'rows');
  bad (sprintf ('1 1 x\n'), 'line 1: the value "x" is not a finite number', 'form', 'rows');
  bad (sprintf ('1 1.5 1\n'), 'line 1: the column "1.5" is not a whole number', 'form', 'rows');
  bad (sprintf ('*USER ELEMENT\n1,1,1,1,1.\n'), 'line 1: the keyword "\*USER ELEMENT"');
  bad (sprintf ('*MATRIX INPUT, INPUT=x.mtx\n1,1,1,1,1.\n'), 'line 1: the option "INPUT=X.MTX"');
  bad (sprintf ('** nothing\n'), 'has no entries');
  bad (sprintf ('%%%%MatrixMarket matrix\n'), 'see qn.mmread');
  bad (sprintf (',1,1,1,1.\n'), 'line 1: the node is missing');
  expect_error (@() qn.read_coordinates ('x', 'form', 'other'), 'qn:input', '~"form" is ''dofs'' or ''rows'' or ''sized''');
end

function test_matrix_market_errors_have_their_line ()
  bad = @(pattern, varargin) expect_bad_file (@qn.mmread, sample_of ('mm', varargin{:}), pattern);
  bad ('line 4: row 0, column 1.*written with numbers from 0', '1 1 4', '0 1 4');
  bad ('line 5: row 1, column 2; of a symmetric matrix', '2 1 -1', '1 2 -1');
  bad ('line 5: the number "x1" is not', '2 1 -1', '2 1 x1');
  bad ('line 9: "7" after the 15 numbers', '3 3 5', '3 3 5', sprintf ('3 3 5\n'), sprintf ('3 3 5\n'), sprintf ('3 2 -2\n3 3 5\n'), sprintf ('3 2 -2\n3 3 5\n7\n'));
  bad ('line 1: "coordinate pattern skew-symmetric" does not go together', 'real symmetric', 'pattern skew-symmetric');
  bad ('line 3: 3 sizes as whole numbers expected, got "3 3"', '3 3 5', '3 3');
  bad ('line 3: a matrix of 3 x 4, which cannot be symmetric', '3 3 5', '3 4 5');
  bad ('line 8: the file ends early: 3000000 numbers|ends early: 3000000', '3 3 5', '3 3 1000000');
  bad ('line 3: a matrix of 1e\+12|line 3: a matrix of 1000000000000', '3 3 5', '1000000000000 1000000000000 5');
  expect_equal (full (read (@qn.mmread, sample_of ('mm', '1 1 4', '1 1 .4D1', '2 1 -1', '2 1 -100.-2'))), demo ());
end
