% Files of other programs that were cut, or changed in places: each is read, or refused with qn:input.
function tests = suite_toolbox_files_mangled ()
  use_toolbox ();
  tests = localfunctions ();
end

function test_every_sample_is_read_as_it_is ()
  s = format_samples ();
  for k = 1:size (s, 1)
    [file, clean] = put_bytes (s{k, 2});
    s{k, 3} (file);
    clear clean
  end
end

function test_files_cut_at_any_place_are_read_or_refused ()
  try_each (@(bytes, k) bytes(1:round (rand () * (numel (bytes) - 1))), 12);
end

function test_files_with_changed_bytes_are_read_or_refused ()
  try_each (@change, 25);
end

function test_files_with_lost_and_doubled_pieces_are_read_or_refused ()
  try_each (@shuffle, 25);
end

function bytes = change (bytes, k)
  likely = ['0123456789+-.EeD ,*$' char([0 9 10 13 127 255])];
  for j = 1:ceil (4 * rand ())
    at = ceil (rand () * numel (bytes));
    if mod (k, 2)
      bytes(at) = likely(ceil (rand () * numel (likely)));
    else
      bytes(at) = char (bitxor (double (bytes(at)), 2 ^ floor (8 * rand ())));
    end
  end
end

function bytes = shuffle (bytes, k)
  from = ceil (rand () * numel (bytes));
  to = min (numel (bytes), from + floor (60 * rand ()));
  if mod (k, 2)
    bytes(from:to) = [];
  else
    bytes = [bytes(1:to), bytes(from:end)];
  end
end

function try_each (mangle, times)
  rand ('twister', 42);
  warning ('off', 'qn:file', 'local');
  s = format_samples ();
  refused = 0;
  for k = 1:size (s, 1)
    for j = 1:rounds (3 * times)
      bytes = mangle (s{k, 2}, j);
      refused = refused + tried (s{k, 3}, bytes, sprintf ('%s, try %d', s{k, 1}, j));
    end
  end
  if refused < 50, error ('only %d files refused', refused); end
end

% 1 where it is refused. A result must be finite, and no larger than a file of this size can say.
function refused = tried (reader, bytes, name)
  [file, clean] = put_bytes (bytes);
  refused = 0;
  before = cputime ();
  try
    x = reader (file);
  catch err
    refused = 1;
    if ~strcmp (err.identifier, 'qn:input') || isempty (strfind (err.message, file))
      error ('%s: [%s] %s, in %s:%d, from the bytes %s', name, err.identifier, err.message, err.stack(1).name, err.stack(1).line, mat2str (double (bytes)));
    end
    return
  end
  if cputime () - before > 20, error ('%s took %g s', name, cputime () - before); end
  room = whos ('x');
  if room.bytes > 5e7, error ('%s: %d bytes', name, room.bytes); end
  if isstruct (x) && isfield (x, 'matrix'), x = cat (1, zeros (0, 1), nonzeros_of(x)); end
  if isnumeric (x) && ~all (isfinite (nonzeros (x))), error ('%s: values that are not finite', name); end
end

function x = nonzeros_of (list)
  x = arrayfun (@(m) nonzeros (m.matrix), list(:), 'uniformoutput', false);
  x = cat (1, zeros (0, 1), x{:});
end

% A line that lost or got a character at its beginning: its numbers must be the same, or be refused, or doubted aloud. By default every
% third of these files, with QUARN_FULL=1 all.
function test_numbers_do_not_change_their_place_with_a_line_that_is_shifted ()
  s = format_samples ();
  [seen, tries, refused, want] = deal (0);
  apart = 3 - 2 * ~isempty (getenv ('QUARN_FULL'));
  for k = 1:size (s, 1)
    if any (strcmp (s{k, 1}, {'dofs', 'rows', 'sized', 'op4 little', 'op4 big', 'op4 long', 'unv binary'})), continue, end
    s{k, 2} = strrep (s{k, 2}, 'GRID,12,,0.,0.,0.', '$');
    evalc ('want = numbers_in (s{k, 3}, s{k, 2});');
    lines = strsplit (s{k, 2}, sprintf ('\n'), 'CollapseDelimiters', false);
    for j = find (~cellfun (@isempty, lines))
      for shifted = {[' ' lines{j}], ['  ' lines{j}], lines{j}(2:end), lines{j}(min (3, end):end)}
        if ~isempty (strtrim (lines{j}(1:min (2, end)))) && numel (shifted{1}) < numel (lines{j}), continue, end
        seen = seen + 1;
        if mod (seen, apart), continue, end
        bytes = strjoin ([lines(1:j - 1), shifted, lines(j + 1:end)], sprintf ('\n'));
        got = [];
        said = '';
        try
          said = evalc ('got = numbers_in (s{k, 3}, bytes);');
        catch err
          if ~strcmp (err.identifier, 'qn:input'), rethrow (err); end
        end
        tries = tries + 1;
        refused = refused + isempty (got);
        if ~isempty (got) && ~isequal (got, want) && isempty (said)
          error ('%s, line %d is read without a word as "%s"', s{k, 1}, j, shifted{1});
        end
      end
    end
  end
  if seen < 200 || refused < 50 / apart, error ('%d tries of %d, %d refused', tries, seen, refused); end
end

function x = numbers_in (reader, bytes)
  [file, clean] = put_bytes (bytes);
  x = reader (file);
  if ~isstruct (x), return, end
  if isfield (x, 'matrix')
    x = {x.matrix};
    return
  end
  f = x.functions;
  if isempty (f) || isempty (x.shapes) || isempty (x.units)
    x = 'less than there was';
    return
  end
  x = {x.nodes, x.units.length, {x.shapes.node}, {x.shapes.values}, {x.shapes.parameters}, {f.x}, {f.y}, {f.node}, {f.direction}};
end
