% QN.READ_UNV  reads nodes, mode shapes and measured functions from a universal file
%
% Purpose
%   Programs for measurement and modal analysis exchange their results this way. The datasets 15, 781 and 2411 (nodes), 55 (data at
%   nodes, such as mode shapes), 58 (functions, such as time histories and frequency responses, as text or binary) and 164 (units) are read.
%
% Calls
%   S = qn.read_unv (FILE)
%
% Input
%   FILE   name of the file
%
% Output
%   S      struct, its numbers as they are in the file:
%            units      struct array: code, text, length, force, temperature, offset. Divided by its factor, a number is in SI units.
%                       Without any, the units of the file are not known.
%            nodes      struct: label (n x 1), place (n x 3) and system (n x 2: of the place, of displacements; local ones are not
%                       turned)
%            shapes     struct array, one a dataset 55: description (five texts), analysis (2 normal mode, 3 complex mode, 5 frequency
%                       response), characteristic (2: three translations, 3: with rotations), quantity (8 displacement, 12
%                       acceleration), parameters (of a normal mode: frequency [Hz], modal mass, viscous and hysteretic damping
%                       ratio), integers, node (p x 1), values (p x components)
%            functions  struct array, one a dataset 58: description, type (1 time history, 4 frequency response), number, node,
%                       direction (1 to 3 translations, 4 to 6 rotations, negative: opposite), name, reference (struct of name, node
%                       and direction), even, step, z, x (1 x k), y (1 x k), and x_axis, y_axis, y_below_axis, z_axis (structs of
%                       kind, label and unit). The times of even steps have the six digits of the step in the file.
%            skipped    numbers of the datasets that were not read
%   The warning qn:file counts what was not read, if it is more than the head of the file (151); warning ('off', 'qn:file') silences it.
%
% Errors
%   qn:input  the file cannot be opened, a dataset is cut short, or a number is malformed or makes no sense; the message has file and line
%
% Example
%   file = [tempname() '.unv'];
%   t = (0:99) * 1e-3;
%   qn.write_unv58 (file, t, sin (200 * t), 'node', 7, 'direction', 3);
%   s = qn.read_unv (file);
%   plot (s.functions.x, s.functions.y);
%   delete (file);
%
% See also qn.write_unv58, qn.spectrum, qn.observe
function s = read_unv (file)
  who = 'qn.read_unv';
  if nargin < 1, error ('qn:input', '%s: the name of a file expected; see help %s', who, who); end
  t = qn.impl.formats.open_text (who, file);
  marks = qn.impl.formats.unv_marks (t);
  s = struct ('units', [], 'nodes', struct ('label', zeros (0, 1), 'place', zeros (0, 3), 'system', zeros (0, 2)), 'shapes', [], ...
              'functions', [], 'skipped', zeros (1, 0));
  k = 1;
  found = 0;
  while k <= numel (t.first)
    line = t.text(t.first(k):t.last(k));
    if isempty (strtrim (line))
      k = k + 1;
      continue
    end
    if isempty (regexp (line, '^    -1\s*$', 'once'))
      qn.impl.formats.refuse (t, k, '-1 in columns 5 and 6 expected where a dataset begins, got "%s"', qn.impl.formats.shown (line));
    end
    [s, t, k] = dataset (t, k + 1, marks, s);
    found = found + 1;
  end
  if found == 0, error ('qn:input', '%s: %s has no datasets', who, file); end
  if any (s.skipped ~= 151)
    names = arrayfun (@(n) sprintf ('%d', n), s.skipped(s.skipped ~= 151), 'uniformoutput', false);
    warning ('qn:file', '%s: %s, datasets that were not read: %s', who, file, qn.impl.formats.counted (names));
  end
end

function [s, t, next] = dataset (t, k, marks, s)
  line = qn.impl.formats.line_of (t, k, 'the number of a dataset');
  number = str2double (regexp (line, '^[ 0-9]{6}', 'match', 'once'));
  further = line(7:end);
  if isempty (number) || isnan (number) || (~isempty (strtrim (further)) && lower (further(1)) ~= 'b')
    qn.impl.formats.refuse (t, k, 'the number of a dataset expected in the first six columns, got "%s"', qn.impl.formats.shown (line));
  end
  to = marks(find (marks > k, 1)) - 1;
  if number == 58
    binary = '';
    if numel (line) > 6 && lower (line(7)) == 'b', binary = line; end
    [f, t, next] = qn.impl.formats.unv_function (t, k + 1, binary);
    s.functions = [s.functions, f];
    line = qn.impl.formats.line_of (t, next, '-1 in columns 5 and 6 as the end of a dataset');
    if isempty (regexp (line, '^    -1\s*$', 'once'))
      qn.impl.formats.refuse (t, next, '-1 in columns 5 and 6 expected after the values, got "%s"', qn.impl.formats.shown (line));
    end
    next = next + 1;
    return
  end
  if isempty (to)
    qn.impl.formats.refuse (t, numel (t.first), 'the file ends within dataset %d, which begins on line %d', number, k - 1);
  end
  next = to + 2;
  switch number
    case {15, 781, 2411}
      n = qn.impl.formats.unv_nodes (t, k + 1, to, number);
      s.nodes = struct ('label', [s.nodes.label; n.label], 'place', [s.nodes.place; n.place], 'system', [s.nodes.system; n.system]);
    case 55
      s.shapes = [s.shapes, qn.impl.formats.unv_shape(t, k + 1, to)];
    case 164
      s.units = [s.units, qn.impl.formats.unv_units(t, k + 1, to)];
    otherwise
      not_hidden (t, k, to, number);
      s.skipped(end + 1) = number;
  end
end

% Where the lines of -1 between two datasets are lost, the second one would be passed over with the first.
function not_hidden (t, from, to, number)
  for k = from + 1:to
    if t.last(k) - t.first(k) > 80, continue, end
    line = deblank (t.text(t.first(k):t.last(k)));
    if ~isempty (regexp (line, '^ {2}(  55|  58| 151| 164| 781|2411|  15)$|^ {4}58[bB]', 'once'))
      qn.impl.formats.refuse (t, k, ['"%s" within dataset %d, which begins on line %d, looks like the number of the next one: is a ' ...
                                     'line of -1 lost?'], line, number, from - 1);
    end
  end
end
