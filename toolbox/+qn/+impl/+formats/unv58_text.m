% TEXT = UNV58_TEXT (WHO, X, Y, O, K)  signal K with its abscissa X as a dataset 58; O are the options of qn.write_unv58
function text = unv58_text (who, x, y, o, k)
  n = numel (x);
  steps = diff (x);
  even = n > 1 && all (abs (steps - mean (steps)) <= 1e-6 * mean (steps));
  step = 0;
  if even, step = (x(n) - x(1)) / (n - 1); end
  ids = {printable(o.description{k}), '', printable(o.date), '', ''};
  if even
    off = abs (as_written (x(1)) + as_written (step) * (n - 1) - x(n)) / step;
  else
    off = 0;
    if n > 1, off = max (abs (arrayfun (@as_written, x) - x)) / min (steps); end
  end
  if off > 0.01
    warning ('qn:file', '%s: with the six digits that the file has for it, X ends %.3g steps from where it should', who, off);
    if even, ids{5} = sprintf ('step %.17g', step); end
  end
  complex_ = ~isreal (y);
  lines = cell (1, 13);
  lines{1} = sprintf ('    -1\n    58');
  for j = 1:5
    if isempty (ids{j}), ids{j} = 'NONE'; end
    lines{1} = sprintf ('%s\n%s', lines{1}, ids{j}(1:min (80, end)));
  end
  lines{2} = sprintf ('%5d%10d%5d%10d %-10s%10.0f%4d %-10s%10d%4d', o.type, k, 1, 0, 'NONE', o.node(k), o.direction(k), 'NONE', 0, 0);
  lines{3} = sprintf ('%10d%10d%10d%s%s%s', 4 + 2 * complex_, n, even, e13 (who, x(1) * even), e13 (who, step), e13 (who, 0));
  abscissa = {17, 'Time', 's'; 0, '', ''; 0, '', ''; 18, 'Frequency', 'Hz'};
  lines{4} = axis_line (abscissa{o.type, :});
  names = {'NONE', 'Displacement', 'Velocity', 'Acceleration', 'Force'};
  unit = printable (o.unit);
  if isempty (unit), unit = 'NONE'; end
  if numel (unit) > 20, error ('qn:input', '%s: "unit" has %d characters; at most 20 fit', who, numel (unit)); end
  lines{5} = axis_line (o.quantity, names{o.quantity == [0 8 11 12 13]}, unit);
  lines{6} = axis_line (0, 'NONE', 'NONE');
  lines{7} = axis_line (0, 'NONE', 'NONE');
  values = y;
  if complex_, values = [real(y); imag(y)]; end
  bad = find (~all (values == 0 | (abs (values) < 9.99999999999e99 & abs (values) >= 1e-99), 1), 1);
  if ~isempty (bad)
    error ('qn:input', '%s: "SIGNALS"(%d, %d) is %g; the exponent has room for two digits', who, k, bad, values(1, bad));
  end
  if ~even, arrayfun (@(v) numel (e13 (who, v)), x); end
  if even
    lines{8} = lines_of ('%20.12E', 4, values(:).');
  elseif complex_
    lines{8} = deblank_end (sprintf ('%13.5E%20.12E%20.12E\n', [x; values]));
  else
    lines{8} = pairs (x, values);
  end
  text = sprintf ('%s\n', lines{1:8}, '    -1');
end

function text = printable (text)
  text(text < 32 | text > 126) = '?';
end

function x = as_written (x)
  x = str2double (sprintf ('%.5E', x));
end

function text = e13 (who, x)
  text = sprintf ('%13.5E', x);
  if numel (text) > 13 || (x ~= 0 && (abs (x) >= 9.999995e99 || abs (x) < 1e-99))
    error ('qn:input', '%s: "X" has %g; its exponent does not fit the file', who, x);
  end
end

function text = axis_line (kind, label, unit)
  text = sprintf ('%10d%5d%5d%5d %-20s %-20s', kind, 0, 0, 0, label, unit);
end

% PER numbers a line, without the end of the last line.
function text = lines_of (format, per, x)
  whole = per * floor (numel (x) / per);
  text = sprintf ([repmat(format, 1, per) '\n'], x(1:whole));
  if whole == 0, text = ''; end
  if whole < numel (x), text = [text, sprintf(format, x(whole + 1:end))]; end
  text = deblank_end (text);
end

function text = pairs (x, y)
  whole = 2 * floor (numel (x) / 2);
  text = '';
  if whole > 0, text = sprintf ('%13.5E%20.12E%13.5E%20.12E\n', [x(1:whole); y(1:whole)]); end
  if whole < numel (x), text = [text, sprintf('%13.5E%20.12E', x(end), y(end))]; end
  text = deblank_end (text);
end

function text = deblank_end (text)
  if ~isempty (text) && text(end) == char (10), text = text(1:end - 1); end
end
