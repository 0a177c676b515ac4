% Universal files: nodes, shapes, functions; functions written.
function tests = suite_toolbox_files_universal ()
  use_toolbox ();
  tests = localfunctions ();
end

function s = read (bytes)
  [file, clean] = put_bytes (bytes);
  s = qn.read_unv (file);
end

function test_nodes_units_and_shapes_are_read ()
  s = read (sample_of ('unv'));
  expect_equal (s.nodes.label, [1; 2; 3]);
  expect_equal (s.nodes.place, [0 0 0; 1.5 0 -0.25; 1.5 0 -0.25]);
  expect_equal (s.nodes.system, [0 0; 0 0; 1 1]);
  expect_equal ({s.units.code, s.units.text, s.units.length, s.units.offset}, {1, 'SI: Meter (newton)', 1, 2.73149999999999977e2});
  expect_equal ({s.shapes.description{1}, s.shapes.analysis, s.shapes.characteristic, s.shapes.quantity}, {'mode 1', 2, 2, 8});
  expect_equal ({s.shapes.parameters, s.shapes.integers}, {[12.5 1 0.01 0], [1 1]});
  expect_equal ({s.shapes.node, s.shapes.values}, {[1; 2], [0 0 0; 0 0 -1]});
  expect_equal (s.skipped, 151);
end

function test_a_function_reads_the_same_from_text_and_bytes ()
  f = read (sample_of ('unv')).functions;
  expect_equal (f.y, [0 0.5 -1.25 3e-7 2]);
  expect_equal (f.x, 0.005 * (0:4));
  expect_equal ({f.node, f.direction, f.type, f.even}, {2, -3, 1, true});
  expect_equal ({f.x_axis.unit, f.y_axis.kind, f.y_axis.label, f.y_axis.unit, f.reference.name}, {'s', 12, 'Acceleration', 'm/s^2', 'NONE'});
  b = read (sample_of ('unv binary')).functions;
  expect_equal (b, f);
  big = sample_of ('unv binary', '58b     1', '58b     2');
  at = strfind (big, char (typecast (0.5, 'uint8'))) - 8;
  big(at:at + 39) = char (typecast (swapbytes ([0 0.5 -1.25 3e-7 2]), 'uint8'));
  expect_equal (read (big).functions, f);
end

% Bytes may look like the end of a dataset, or of a line.
function test_bytes_that_look_like_lines_do_not_end_a_function ()
  bytes = sample_of ('unv binary');
  at = strfind (bytes, char (typecast (0.5, 'uint8'))) - 8;
  trap = [char(10) '    -1' char([10 13 10]) '    -1' char(10) 'abcdefghij' char(10) '    -1' char(10)];
  bytes(at:at + 39) = [trap, repmat('x', 1, 40 - numel (trap))];
  two = read ([bytes sample_of('unv')]);
  expect_equal (numel (two.functions), 2);
  expect_equal (two.functions(1).y, typecast (uint8 (bytes(at:at + 39)), 'double'));
  expect_equal (two.functions(2).y, [0 0.5 -1.25 3e-7 2]);
end

function test_uneven_complex_and_single_values_are_read ()
  uneven = sample_of ('unv', '         4         5         1', '         2         3         0', ...
                      sprintf ('  0.000000000000E+00  5.000000000000E-01 -1.250000000000E+00  3.000000000000E-07\n  2.000000000000E+00'), ...
                      '  0.00000E+00  1.00000E+00  1.00000E-01-2.00000E+00  4.00000E-01  3.00000-10');
  f = read (uneven).functions;
  expect_equal ({f.x, f.y, f.even}, {[0 0.1 0.4], [1 -2 3e-10], false});
  complex_ = sample_of ('unv', '         4         5         1', '         6         2         0', ...
                        sprintf ('  0.000000000000E+00  5.000000000000E-01 -1.250000000000E+00  3.000000000000E-07\n  2.000000000000E+00'), ...
                        sprintf ('  1.00000E+00  1.000000000000E+00  2.000000000000E+00\n  3.00000E+00 -1.000000000000E+00  4.000000000000E+00'));
  f = read (complex_).functions;
  expect_equal ({f.x, f.y}, {[1 3], [1 + 2i, -1 + 4i]});
  filled = sample_of ('unv', [char(10) '  2.000000000000E+00' char(10)], [char(10) '  2.000000000000E+00  0.000000000000E+00' char(10)]);
  expect_equal (read (filled).functions.y, [0 0.5 -1.25 3e-7 2]);
end

function test_uneven_bytes_are_read_with_either_abscissa ()
  for kind = {'single', 'double'}
    bytes = '';
    for k = 1:3, bytes = [bytes char(typecast (cast (k ^ 2, kind{1}), 'uint8')) char(typecast (k / 8, 'uint8'))]; end
    head = sample_of ('unv binary', '          40', sprintf ('%12d', numel (bytes)), '         4         5         1', '         4         3         0');
    head = head(1:strfind (head, [char(10) char(typecast (0, 'uint8'))]));
    f = read ([head bytes sprintf('\n    -1\n')]).functions;
    expect_equal ({f.x, f.y}, {[1 4 9], [1 2 3] / 8});
  end
end

function test_complex_and_unused_nodes_in_shapes_are_read ()
  text = sample_of ('unv', '         1         2         2         8         2         3', '         1         3         3         8         5         6', ...
                    sprintf ('  0.00000E+00  0.00000E+00  0.00000E+00\n         2\n  0.00000E+00  0.00000E+00 -1.00000E+00'), ...
                    sprintf ([repmat('%13.5E', 1, 6) '\n' repmat('%13.5E', 1, 6)], 1:12));
  s = read (text).shapes;
  expect_equal (s.values, (1:2:11) + 1i * (2:2:12));
end

function test_signals_come_back_from_the_file_that_was_written ()
  rand ('twister', 42);
  file = [tempname() '.unv'];
  clean = onCleanup (@() delete (file));
  for k = 1:rounds (20)
    n = ceil (9 * rand ());
    p = ceil (3 * rand ());
    x = (0:n - 1) * 0.0125 + 3;
    if mod (k, 4) >= 2, x = cumsum (round (1e4 * rand (1, n)) + 1) / 100; end
    y = randn (p, n) .* 10 .^ (20 * rand (p, n) - 10);
    if mod (k, 2), y = y + 1i * randn (p, n); end
    qn.write_unv58 (file, x, y, 'type', 'response', 'node', 10 + (1:p), 'direction', -3, 'quantity', 'velocity', 'unit', 'm/s', ...
                    'description', 'a description', 'date', '22-NOV-26 10:00:00');
    s = qn.read_unv (file);
    f = s.functions;
    expect_equal (numel (f), p);
    for j = 1:p
      expect_equal (f(j).x, x, 1e-5);
      expect_equal (f(j).y ./ y(j, :), ones (1, n), 1e-10);
      expect_equal ({f(j).node, f(j).direction, f(j).number, f(j).y_axis.kind, f(j).y_axis.unit, f(j).type}, {10 + j, -3, j, 11, 'm/s', 4});
      expect_equal (f(j).description([1 3]), {'a description', '22-NOV-26 10:00:00'});
    end
  end
  lines = strsplit (fileread (file), sprintf ('\n'));
  expect_equal (numel (lines{9}), 56 + 13);
  expect_equal ([numel(lines{8}), numel(lines{10}), max(cellfun (@numel, lines)) <= 80], [80 67 1]);
end

function test_a_step_that_the_file_cannot_hold_is_said ()
  file = [tempname() '.unv'];
  clean = onCleanup (@() delete (file));
  text = evalc ('qn.write_unv58 (file, (0:99999) / 51200, zeros (1, 100000));');
  expect_in (text, 'X ends 0.256 steps from where it should');
  s = qn.read_unv (file);
  f = s.functions;
  expect_equal (f.description{5}, 'step 1.953125e-05');
  text = evalc ('qn.write_unv58 (file, (0:99999) / 50000, zeros (1, 100000));');
  expect_equal (text, '');
end

function test_what_cannot_be_written_is_refused ()
  write = @(varargin) qn.write_unv58 (tempname (), varargin{:});
  expect_error (@() write ([0 1], [1 1e100]), 'qn:input', '~"SIGNALS"\(1, 2\) is 1e\+100; the exponent');
  expect_error (@() write ([0 1e100], [1 1]), 'qn:input', '~"X" has 1e\+100');
  expect_error (@() write ([0 1], [1 1], 'node', [1 2]), 'qn:input', '~"node" must have 1 or 1 values');
  expect_error (@() write ([0 1], [1 1], 'quantity', 'x'), 'qn:input', '~"quantity" must be one of unknown, displacement');
  expect_error (@() write ([0 1], [1 1], 'unit', repmat ('x', 1, 21)), 'qn:input', '~"unit" has 21 characters');
  expect_error (@() write ([0 1], [1 1], 'date', 3), 'qn:input', '~"date" must be a text');
  expect_error (@() write ([0 1], [1 1], 'description', {'a', 'b'}), 'qn:input', '~"description" must be one text');
  expect_error (@() qn.write_unv58 (fullfile (tempname (), 'x'), [0 1], [1 1]), 'qn:input', '~cannot write');
end

function test_bad_universal_files_are_refused_with_their_line ()
  bad = @(pattern, varargin) expect_bad_file (@qn.read_unv, sample_of ('unv', varargin{:}), pattern);
  bad ('line 1: -1 in columns 5 and 6 expected where a dataset begins, got "   -1"', '    -1', '   -1');
  bad ('line 2: the number of a dataset expected', '   151', '   abc');
  bad ('line 8: the code of the units', '         1SI', '         xSI');
  bad ('line 9: factor 1 of the units is 0', '  1.00000000000000000D+00', '  0.00000000000000000D+00');
  bad ('line 14: node 0 in the systems', '         1         0         0         8', '         0         0         0         8');
  bad ('line 15: a coordinate is no finite number', '  1.50000E+00', '  1.5000xE+00');
  bad ('line 29: type of data 3', '8         2         3', '8         3         3');
  bad ('line 30: number 5 of 11 of whole numbers of the dataset is missing', '         2         4         1', '         9         4         1');
  bad ('line 34: the number of a node expected', [char(10) '         2' char(10)], [char(10) '         x' char(10)]);
  bad ('a node comes twice', [char(10) '         2' char(10)], [char(10) '         1' char(10)]);
  bad ('line 34: 3 lines of data at nodes; a node takes 2', [char(10) '  0.00000E+00  0.00000E+00 -1.00000E+00'], '');
  bad ('line 44: the node makes no sense', '    2  -3', '    x  -3');
  bad ('line 45: type of the values 3', '         4         5         1', '         3         5         1');
  bad ('line 45: values in even steps, and a step of 0', '5.00000E-03', '0.00000E+00');
  bad ('line 45: the count of values is 999999', '         4         5', '         4    999999');
  bad ('line 50: number 2 of values of the function "accel at node 2, -Z"', '5.000000000000E-01', '5.0000x0000000E-01');
  bad ('line 51: -1 in columns 5 and 6 expected after the values, got "  2.0', '         4         5', '         4         4');
  text = sample_of ('unv');
  expect_bad_file (@qn.read_unv, text(1:60), 'the file ends within dataset 164|the file ends');
  expect_bad_file (@qn.read_unv, sprintf ('\n'), 'has no datasets');
  bad = @(pattern, varargin) expect_bad_file (@qn.read_unv, sample_of ('unv binary', varargin{:}), pattern);
  bad ('line 2: byte order 3', '58b     1', '58b     3');
  bad ('line 2: floating-point numbers of kind 1', '1     2   ', '1     1   ');
  bad ('line 2: 39 bytes; 5 values of this type take 40', '          40', '          39');
  bad ('line 2: 12 lines of text', '  11 ', '  12 ');
  text = sample_of ('unv binary');
  expect_bad_file (@qn.read_unv, text(1:end - 20), 'the file ends early: 40 bytes expected from line 14 on');
end

% What the reader says of a file, on one line, and the result.
function [said, s] = said_of (bytes)
  [file, clean] = put_bytes (bytes);
  s = [];
  said = regexprep (evalc ('s = qn.read_unv (file);'), '\s+', ' ');
end

function test_datasets_that_are_not_read_are_counted_once ()
  lines = @(varargin) sprintf ('%s\n', varargin{:});
  other = lines ('    -1', '  2412', '         7        21         1         1         7         2', '         0         1         1', ...
                 '         1         2', '    -1');
  [said, s] = said_of ([other, sample_of('unv'), other, strrep(other, '2412', '  82')]);
  expect_in (said, 'datasets that were not read: 2412 (2), 82');
  expect_equal (s.skipped, [2412 151 2412 82]);
  expect_equal (numel (strfind (said, 'were not read')), 1);
  expect_equal (said_of (sample_of ('unv')), '');
  warning ('off', 'qn:file', 'local');
  expect_equal (said_of (other), '');
end

% Without both lines of -1 between two datasets the second one vanished with the first.
function test_a_dataset_is_not_hidden_in_one_that_is_passed_over ()
  ends = sprintf ('    -1\n    -1\n');
  bytes = sample_of ('unv');
  at = strfind (bytes, ends);
  for new = {'', sprintf('    -2\n    -2\n'), sprintf('   -1 \n    -l\n')}
    for k = at
      text = [bytes(1:k - 1), new{1}, bytes(k + numel (ends):end)];
      expect_bad_file (@qn.read_unv, text, 'line \d+: ');
    end
  end
  lost = @(number) [strrep(bytes(1:at(1) - 1), '   151', '  2412'), sprintf('%s\n', number), bytes(at(1) + numel (ends):end)];
  for number = {'    15', '    55', '    58', '    58b     1     2', '   151', '   164', '   781', '  2411'}
    expect_bad_file (@qn.read_unv, lost (number{1}), ...
                     ['line 5: "', number{1}, '" within dataset 2412, which begins on line 1, looks like the number of the next one']);
  end
  expect_bad_file (@qn.read_unv, [bytes(1:at(2) - 1), bytes(at(2) + numel (ends):end)], ...
                   'more than the three lines of the units: is a line of -1 lost\?');
end

% The end of a number was left beyond the columns: -0.25 became -2.5.
function test_lines_that_were_shifted_are_refused ()
  bad = @(pattern, varargin) expect_bad_file (@qn.read_unv, sample_of ('unv', varargin{:}), pattern);
  bad ('line 20: "1" right of column 75, where the numbers of a node end', '   1.5000000000000000D+00', '    1.5000000000000000D+00');
  bad ('line 15: "01" right of column 79, where the numbers of a node end', '8  1.50000E+00  0.0', '8  1.50000E+00    0.0');
  bad ('line 44: "2" in column 56, which is blank between two fields: a line that was shifted\?', '   2  -3 NONE', '   2    2NONE');
  bad ('line 46: "T" in column 26, which is blank between two fields', '    0 Time', '    0Time');
  bad ('line 46: "s" in column 47, which is blank', 'Time                 s', 'Time                s');
  bad ('line 46: the kind of an axis makes no sense', '        17    0    0    0', '        17    0    x    0');
  bad ('line 23: the number of a dataset expected in the first six columns', '    55', '     55');
  uneven = sample_of ('unv', '         4         5         1', '         4         1         0', ...
                      sprintf ('  0.000000000000E+00  5.000000000000E-01 -1.250000000000E+00  3.000000000000E-07\n  2.000000000000E+00'), ...
                      '  0.00000E+00  1.000000000000E+00  1.00000E-01  2.000000000000E+00');
  expect_bad_file (@qn.read_unv, uneven, 'line 50: number 2 of values of the function "accel at node 2, -Z" is "  1.00000E-01"');
end
