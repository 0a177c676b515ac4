% LINES = WRITES_AT_PROMPT ()  whether results arrive in variables of the base workspace, as statements at the prompt make them
%
% The names begin with quarn_report_ and are gone afterwards.
function lines = writes_at_prompt ()
  cases = {'zeros (3, 1)', 'y = zeros (3, 1)', 'y'
           'zeros (1, 1)', 'y = zeros (1, 1)', 'y'
           'scalar that was computed', 'y = sum ([0.5 0.25])', 'y'
           'literal scalar', 'y = 41.5', 'y'
           'range 1:3', 'y = 1:3', 'y'
           'field s.y, zeros (3, 1)', 'y = struct (''y'', zeros (3, 1))', 'y.y'
           'field s.y, zeros (1, 1)', 'y = struct (''y'', zeros (1, 1))', 'y.y'
           'cell c{1}, zeros (3, 1)', 'y = {zeros(3, 1)}', 'y{1}'
           'cell c{1}, zeros (1, 1)', 'y = {zeros(1, 1)}', 'y{1}'};
  away = onCleanup (@() evalin ('base', 'clear quarn_report_y quarn_report_copy'));
  lines = cell (1, size (cases, 1));
  for k = 1:numel (lines), lines{k} = one (cases{k, :}); end
end

function line = one (name, statement, target)
  target = ['quarn_report_' target];
  evalin ('base', ['quarn_report_' statement ';']);
  evalin ('base', 'quarn_report_copy = quarn_report_y;');
  before = evalin ('base', [target ' + 0']);
  n = numel (before);
  evalin ('base', sprintf ('quarn (''tbbp'', qn.pack (3 * eye (%d)), 2 * ones (%d, 1), %s);', n, n, target));
  now = evalin ('base', [target ' + 0']);
  copy = evalin ('base', [strrep(target, 'report_y', 'report_copy') ' + 0']);
  line = qn.impl.host.written (name, before, now, copy);
end
