% QN.WRITE_UNV58  writes time histories or frequency responses as functions of a universal file (dataset 58)
%
% Purpose
%   Simulated signals for programs for measurement and modal analysis, with 13 digits.
%
% Calls
%   qn.write_unv58 (FILE, X, SIGNALS, ...)
%
% Input
%   FILE      name of the file; an existing one is replaced
%   X         1 x k ascending times [s], or frequencies [Hz] where 'type' says so
%   SIGNALS   p x k, real or complex, one row per signal
%   Names and values
%     'type'         'time' or 'response', a frequency response ('time')
%     'quantity'     'displacement', 'velocity', 'acceleration', 'force' or 'unknown' ('unknown')
%     'unit'         text of the unit ('')
%     'node'         number of the node, one or p (0)
%     'direction'    1 to 3 translations, 4 to 6 rotations, negative: opposite, 0 none; one or p (0)
%     'description'  text, or cell of p texts ('')
%     'date'         text of the date ('')
%
% Errors
%   qn:input  the lengths differ, X does not ascend, a value is not finite or has an exponent of three digits, a text does not fit, or the
%             file cannot be written. The file has room for six digits of the step, and of X in uneven steps: the warning qn:file
%             says where that moves the last value by more than a hundredth of a step; the exact step is then in the fifth line of the
%             description.
%
% Example
%   file = [tempname() '.unv'];
%   t = (0:99) * 1e-3;
%   qn.write_unv58 (file, t, [sin(200 * t); cos(200 * t)], 'node', [7 8], 'direction', 3, 'quantity', 'acceleration', 'unit', 'm/s^2');
%   delete (file);
%
% See also qn.read_unv, qn.displacement, qn.acceleration
function write_unv58 (file, x, signals, varargin)
  who = 'qn.write_unv58';
  if nargin < 3, error ('qn:input', '%s: a file name, times and signals expected; see help %s', who, who); end
  o = qn.impl.options (who, struct ('type', 'time', 'quantity', 'unknown', 'unit', '', 'node', 0, 'direction', 0, 'description', '', ...
                                    'date', ''), varargin);
  x = reshape (qn.impl.numbers (who, 'X', x, [], 'list', 'ascending'), 1, []);
  signals = qn.impl.numbers (who, 'SIGNALS', signals, [NaN numel(x)], 'complex', 'each', 'one column a value of X');
  p = size (signals, 1);
  o.node = each (qn.impl.numbers (who, 'node', o.node, [], 'list', 'whole', 'from', 0, 'to', 9999999999), p, who, 'node');
  o.direction = each (qn.impl.numbers (who, 'direction', o.direction, [], 'list', 'whole', 'from', -6, 'to', 6), p, who, 'direction');
  if ischar (o.description), o.description = repmat ({o.description}, 1, p); end
  if ~iscellstr (o.description) || numel (o.description) ~= p
    error ('qn:input', '%s: "description" must be one text or a cell of %d texts', who, p);
  end
  o.type = word (who, 'type', o.type, {'time', 'response'; 1, 4});
  o.quantity = word (who, 'quantity', o.quantity, {'unknown', 'displacement', 'velocity', 'acceleration', 'force'; 0, 8, 11, 12, 13});
  for name = {'unit', 'date'}
    if ~ischar (o.(name{1}))
      error ('qn:input', '%s: "%s" must be a text, got an array of class %s', who, name{1}, class (o.(name{1})));
    end
  end
  text = '';
  for k = 1:p, text = [text, qn.impl.formats.unv58_text(who, x, signals(k, :), o, k)]; end
  qn.impl.files.write_text (who, qn.impl.chars (file), text);
end

function x = each (x, p, who, name)
  if numel (x) == 1, x = x * ones (1, p); end
  if numel (x) ~= p, error ('qn:input', '%s: "%s" must have 1 or %d values, one a signal, got %d', who, name, p, numel (x)); end
end

function code = word (who, name, x, list)
  k = [];
  if ischar (x), k = find (strcmp (x, list(1, :))); end
  if isempty (k), error ('qn:input', '%s: "%s" must be one of %s', who, name, strjoin (list(1, :), ', ')); end
  code = list{2, k};
end
