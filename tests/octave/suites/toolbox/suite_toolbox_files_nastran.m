% OUTPUT4 files, text and binary, and DMIG entries.
function tests = suite_toolbox_files_nastran ()
  use_toolbox ();
  tests = localfunctions ();
end

function varargout = read (reader, bytes)
  [file, clean] = put_bytes (bytes);
  warning ('off', 'qn:file', 'local');
  [varargout{1:nargout}] = reader (file);
end

function test_dense_and_sparse_text_is_read ()
  m = read (@qn.read_op4, sample_of ('op4 dense'));
  expect_equal ({m.name, m.form, m.precision, full(m.matrix)}, {'KDEMO', 'symmetric', 2, [4 -1 0; -1 3 -2; 0 -2 5]});
  for name = {'op4 sparse', 'op4 bigmat'}
    m = read (@qn.read_op4, sample_of (name{1}));
    expect_equal ({m.name, m.form, full(m.matrix)}, {'BDEMO', 'rectangular', [7 0; 0 0.5; -9 0.25]});
  end
end

function test_several_matrices_are_found_by_name ()
  both = [sample_of('op4 dense') sample_of('op4 bigmat')];
  expect_equal ({read(@qn.read_op4, both).name}, {'KDEMO', 'BDEMO'});
  expect_equal (full (read (@(f) qn.read_op4 (f, 'BDEMO'), both)), [7 0; 0 0.5; -9 0.25]);
  expect_error (@() read (@(f) qn.read_op4 (f, 'X'), both), 'qn:input', '~0 matrices named "X"; it has KDEMO, BDEMO');
  expect_error (@() read (@(f) qn.read_op4 (f, 'KDEMO'), [both both]), 'qn:input', '~2 matrices named "KDEMO"');
end

function test_a_name_may_touch_its_numbers_and_exponents_lack_their_letter ()
  m = read (@qn.read_op4, sample_of ('op4 dense', '2KDEMO  ', '21MAT   ', ' 4.000000000E+00', ' 4.000000000+000', '-1.000000000E+00', '-1.000000000D+00'));
  expect_equal ({m.name, full(m.matrix)}, {'1MAT', [4 -1 0; -1 3 -2; 0 -2 5]});
end

function test_a_count_in_words_and_a_wide_head_are_read ()
  words = sample_of ('op4 dense', '       1       1       2', '       1       1       4', '       2       1       3', '       2       1       6', ...
                     '       3       2       2', '       3       2       4');
  expect_equal (full (read (@qn.read_op4, words).matrix), [4 -1 0; -1 3 -2; 0 -2 5]);
  wide = sample_of ('op4 sparse', '       2       3       2       2BDEMO   1P,5E16.9', ...
                    '               2               3       2       2BDEMO   1P,5E16.9|I16');
  expect_equal (full (read (@qn.read_op4, wide).matrix), [7 0; 0 0.5; -9 0.25]);
end

function test_a_complex_matrix_and_one_of_zeros_are_read ()
  text = sprintf (['%8d%8d%8d%8d%-8s%s\n%8d%8d%8d\n%16.9E%16.9E%16.9E%16.9E\n%8d%8d%8d\n%16.9E\n' ...
                   '%8d%8d%8d%8d%-8s%s\n%8d%8d%8d\n%16.9E\n'], 1, 3, 2, 4, 'C', '1P,5E16.9', 1, 2, 4, 1, 2, 3, -4, 2, 1, 1, 1, ...
                   2, 2, 1, 1, 'Z', '1P,5E16.9', 3, 1, 1, 1);
  m = read (@qn.read_op4, text);
  expect_equal (full (m(1).matrix), [0; 1 + 2i; 3 - 4i]);
  expect_equal (full (m(2).matrix), zeros (2));
end

function test_one_triangle_of_a_symmetric_matrix_stands_for_both ()
  lower = sample_of ('op4 dense', sprintf ('       2       1       3\n-1.000000000E+00 3.000000000E+00'), ...
                     sprintf ('       2       2       2\n 3.000000000E+00'), sprintf ('       3       2       2\n-2.000000000E+00 5.000000000E+00'), ...
                     sprintf ('       3       3       1\n 5.000000000E+00'));
  expect_equal (full (read (@qn.read_op4, lower).matrix), [4 -1 0; -1 3 -2; 0 -2 5]);
  expect_bad_file (@qn.read_op4, sample_of ('op4 dense', ' 4.000000000E+00-1', ' 4.000000000E+00-6'), 'line 1: a matrix that is said to be symmetric');
end

function test_binary_files_of_every_order_and_width_are_read ()
  rand ('twister', 42);
  for type = 1:4
    for order = {'little', 'big'}
      for word = [4 8]
        if word == 8 && mod (type, 2) == 0, continue, end
        for form = {'dense', 'sparse', 'bigmat'}
          a = round (100 * sprand (5, 3, 0.5)) / 4;
          if type > 2, a = a + 1i * round (a / 3); end
          m = read (@qn.read_op4, [op4_bytes(a, type, order{1}, word, form{1}), op4_bytes(2 * a, type, order{1}, word, form{1})]);
          expect_equal ({m.name}, {'KAA', 'KAA'});
          expect_equal (full (m(1).matrix), full (a));
          expect_equal (full (m(2).matrix), full (2 * a));
        end
      end
    end
  end
end

function test_bad_output4_text_is_refused_with_its_line ()
  bad = @(name, pattern, varargin) expect_bad_file (@qn.read_op4, sample_of (name, varargin{:}), pattern);
  bad ('op4 dense', 'line 1: ".*" is no head of a matrix', '       3       3       6       2K', '       3       3       6       7K');
  bad ('op4 dense', 'line 1: form 8; 1 \(square\)', '       6       2K', '       8       2K');
  bad ('op4 dense', 'line 1: a matrix of 7 x 3 is said to be symmetric', '       3       3       6', '       3       7       6');
  bad ('op4 dense', 'line 1: a matrix of 99999999 x 3', '       3       3       6', '       399999999       6');
  bad ('op4 dense', 'line 1: the format "5X"', '1P,5E16.9', '5X');
  bad ('op4 dense', 'line 4: column 1 after column 1', '       2       1       3', '       1       1       3');
  bad ('op4 dense', 'line \d: values to row 4 of 3', '       3       2       2', '       3       3       2');
  bad ('op4 dense', 'line 3: number 2 of column 1 of "KDEMO" is "-1.00000000xE\+00"', '-1.000000000E+00', '-1.00000000xE+00');
  bad ('op4 dense', 'line 5: 2 numbers of column 2 of "KDEMO" expected, got more', '       2       1       3', '       2       1       2');
  bad ('op4 dense', 'line 8: column 5 of 3', '       4       1       1', '       5       1       1');
  bad ('op4 sparse', 'line 3: a string of 2 words from row 4', '  196609', '  196612');
  bad ('op4 bigmat', 'line 3: column 1 of "BDEMO": the head of a string', '       3       1', '       x       1');
  text = sample_of ('op4 dense');
  expect_bad_file (@qn.read_op4, text(1:150), 'number 2 of 3 of column 2 of "KDEMO" is missing');
  expect_bad_file (@qn.read_op4, text(1:end - 18), 'the file ends early: the value that ends a matrix');
  expect_bad_file (@qn.read_op4, 'ab', 'has 2 bytes');
end

function test_bad_binary_output4_is_refused_with_its_byte ()
  good = op4_bytes ([4 -1; -1 3], 2, 'little', 4, 'dense');
  put = @(bytes, at, x) [bytes(1:at) char(typecast (int32 (x), 'uint8')) bytes(at + 5:end)];
  bad = @(bytes, pattern) expect_bad_file (@qn.read_op4, bytes, pattern);
  bad (good(1:50), 'byte 32: the file ends early: a record of 28 bytes begins here, 14 are left');
  bad (good(1:32), 'byte 32: the file ends early');
  bad (put (good, 28, 23), 'byte 0: a record of 24 bytes begins here, and ends as one of 23');
  bad (put (good, 16, 7), 'byte 0: type 7; 1 to 4 expected');
  bad (put (good, 44, 5), 'byte 32: column 1 has 5 words, its record 28 bytes; 32 expected');
  bad (put (good, 40, 2), 'byte 32: values to row 3 of 2');
  bad (put (good, 68 + 4, 1), 'byte 68: column 1 after column 1');
  bad (put (good, 32, -28), 'byte 32: a record in several pieces');
  bad (op4_bytes ([1 Inf], 1, 'big', 4, 'dense'), 'is not finite');
  bad (put (op4_bytes (1, 1, 'little', 8, 'dense'), 28, 2), 'byte 0: type 2 with whole numbers of 64 bits is not read');
end

% They were added, without a word.
function test_strings_of_a_sparse_column_that_overlap_or_go_back_are_refused ()
  expect_bad_file (@qn.read_op4, sample_of ('op4 sparse', '  196611', '  196609'), ...
                   'line 5: column 1 of "BDEMO": a string from row 1 on, after one to row 1');
  expect_bad_file (@qn.read_op4, strrep (sample_of ('op4 sparse', '  196611', '  196610'), '  196609', '  196611'), ...
                   'line 5: column 1 of "BDEMO": a string from row 2 on, after one to row 3');
  expect_bad_file (@qn.read_op4, sample_of ('op4 bigmat', '       3       3', '       3       1'), 'a string from row 1 on, after one to row 1');
  put = @(bytes, at, x) [bytes(1:at) char(typecast (int32 (x), 'uint8')) bytes(at + 5:end)];
  good = op4_bytes ([4; 0; -1], 2, 'little', 4, 'sparse');
  expect_equal (full (read (@(f) qn.read_op4 (f, 'KAA'), good)), [4; 0; -1]);
  expect_bad_file (@qn.read_op4, put (good, 60, 3 * 65536 + 1), 'byte 32: column 1: a string from row 1 on, after one to row 1');
end

function test_columns_that_begin_at_no_row_are_refused ()
  put = @(bytes, at, x) [bytes(1:at) char(typecast (int32 (x), 'uint8')) bytes(at + 5:end)];
  good = op4_bytes ([4; 0; -1], 2, 'little', 4, 'sparse');
  expect_bad_file (@qn.read_op4, put (good, 40, -1), 'byte 32: column 1 begins at row -1 of 3 and has 6 words');
  expect_bad_file (@qn.read_op4, put (good, 40, 4), 'byte 32: column 1 begins at row 4 of 3');
  expect_bad_file (@qn.read_op4, put (good, 44, -3), 'byte 32: column 1 begins at row 0 of 3 and has -3 words');
  none = char (typecast (int32 ([12, 1, -1, 0, 12]), 'uint8'));
  expect_bad_file (@qn.read_op4, [good(1:32), none, good(73:end)], 'byte 32: column 1 begins at row -1 of 3 and has 0 words');
end

function test_small_large_and_free_fields_are_read ()
  [k, rows, columns] = read (@(f) qn.read_dmig (f, 'kd'), sample_of ('dmig'));
  expect_equal (full (k), [4000 -0.01 0; -0.01 3000 -2.5; 0 -2.5 5000]);
  expect_equal (rows, [12 1; 12 2; 30 0]);
  expect_equal (columns, rows);
  m = read (@qn.read_dmig, sample_of ('dmig'));
  expect_equal ({m.name, m.form}, {'KD', 'symmetric'});
end

function test_square_rectangular_and_complex_entries_are_read ()
  text = sprintf (['DMIG,A,0,1,2,0\nDMIG,A,5,1,,5,1,1.0,,+A\n+A,7,3,2.0\nDMIG,B,0,9,4,0,1,,2\nDMIG,B,1,0,,5,1,2.,90.\n', ...
                   'DMIG*,B,2,0,\n*,5,1,1.5D0,0.\nDMIG,C,0,2,3,0\nDMIG,C,1,,,5,1,2.,-1.\n']);
  m = read (@qn.read_dmig, text);
  expect_equal ({m.name, m.form}, {'A', 'B', 'C', 'square', 'rectangular', 'rectangular'});
  expect_equal (full (m(1).matrix), [1 0; 2 0]);
  expect_equal (m(1).rows, [5 1; 7 3]);
  expect_equal (full (m(2).matrix), [2i, 1.5], 1e-15);
  expect_equal (m(2).columns, [1 0; 2 0]);
  expect_equal (full (m(3).matrix), 2 - 1i);
end

% A continuation whose first character was damaged was passed over with its terms.
function test_an_entry_whose_continuation_is_missing_is_refused ()
  bad = @(varargin) expect_bad_file (@qn.read_dmig, sample_of ('dmig', varargin{:}), 'line 4: the entry goes on in "\+D1", which does not follow');
  bad ([char(10) '+D1 '], [char(10) '-D1 ']);
  bad ([char(10) '+D1 '], [char(10) '$D1 ']);
  text = sample_of ('dmig');
  expect_bad_file (@qn.read_dmig, text(1:strfind (text, [char(10) '+D1 '])), 'the entry goes on in "\+D1", which does not follow');
end

function test_bad_dmig_entries_are_refused_with_their_line ()
  bad = @(pattern, varargin) expect_bad_file (@qn.read_dmig, sample_of ('dmig', varargin{:}), pattern);
  bad ('line 4: terms of "KD", which has no head', 'DMIG    KD             0       6', 'DMIG    KE             0       6');
  bad ('line 9: a second head of the matrix "KD"', 'DMIG,KD,30,0,,30,0,5.0E3', 'DMIG,KD,0,6,2');
  bad ('line 9: "1" in the fourth field of a column of "KD", which is blank: fields that have moved\?', '30,0,,30', '30,0,1,30');
  bad ('line 9: the components 0 and 7 of a term; 0 to 6 expected', ',,30,0,5', ',,30,7,5');
  bad ('line 9: a value is "5"; a real number with a decimal point expected', '5.0E3', '5');
  bad ('line 9: a value is ""', '30,0,5.0E3', '30,0');
  bad ('line 9: a point or a component is "3O"', ',,30,0,5', ',,3O,0,5');
  bad ('line 9: a term without a point', ',,30,0,5', ',,,0,5');
  bad ('line 5: the continuation "D2"; "D1" expected', '+D1   ', '+D2   ');
  bad ('line 3: IFO of "KD" is 5', '0       6       2', '0       5       2');
  bad ('line 3: TIN of "KD" is 7', '6       2', '6       7');
  bad ('line 3: IFO of "KD" is "x"|line 3: IFO of "KD" is "X"', '0       6       2', '0       x       2');
  bad ('line 10: the entry \(3, 3\) comes twice', 'ENDDATA', 'DMIG,KD,30,0,,30,0,5.0E3');
  bad ('line \d: the entry \(\d, \d\) is .* on one side', 'ENDDATA', 'DMIG,KD,12,2,,12,1,5.0E3');
  bad ('line 9: the name "1KD"', 'DMIG,KD,30', 'DMIG,1KD,30');
  bad ('line 9: a column of "KD" without terms', 'DMIG,KD,30,0,,30,0,5.0E3', 'DMIG,KD,30,0');
  bad ('line 9: a second number in a term of the real matrix', '5.0E3', '5.0E3,1.0');
  bad ('line 2: an entry DMIJ; only DMIG is read', 'GRID,', 'DMIJ,');
  bad ('line 9: 11 fields between commas', '5.0E3', '5.0E3,,,');
  bad ('line 6: a tab', 'DMIG*   KD', ['DMIG*' char(9) 'KD']);
  expect_error (@() read (@qn.read_dmig, 'GRID,1'), 'qn:input', '~has no DMIG entries');
  expect_error (@() read (@(f) qn.read_dmig (f, 'M'), sample_of ('dmig')), 'qn:input', '~no matrix named "M"; it has KD');
  expect_error (@() read (@(f) qn.read_dmig (f, 3), sample_of ('dmig')), 'qn:input', '~"NAME" must be a text');
end

function test_entries_that_are_passed_over_are_counted_once ()
  deck = sprintf ('%s\n', 'SOL 101', 'CEND', 'BEGIN BULK', 'GRID,12,,0.,0.,0.', '$ GRID', 'grid,13,,0.,0.,0.', 'DM1G,KD,30,0,,30,0,5.0E3', ...
                  'PARAM*  POST', '*               0', '+ERR', '=', 'CBUSH   7', '        continued');
  [file, clean] = put_bytes ([deck sample_of('dmig')]);
  said = regexprep (evalc ('[list, skipped] = qn.read_dmig (file);'), '\s+', ' ');
  expect_equal (skipped, {'GRID', 'GRID', 'DM1G', 'PARAM', '?', 'CBUSH', 'GRID'});
  expect_in (said, 'passed over besides DMIG: ?, CBUSH, DM1G, GRID (3), PARAM');
  expect_equal (numel (strfind (said, 'passed over')), 1);
  [unused, unused2, unused3, again] = evalc_of (file);
  expect_equal (again, skipped);
  only = sample_of ('dmig', 'GRID,12,,0.,0.,0.', '$');
  [file, clean] = put_bytes (only);
  expect_equal (evalc ('qn.read_dmig (file);'), '');
  [list, skipped] = qn.read_dmig (file);
  expect_equal (skipped, cell (1, 0));
end

function varargout = evalc_of (file)
  [said, varargout{1:4}] = evalc ('qn.read_dmig (file, ''kd'')');
end
