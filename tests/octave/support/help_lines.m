% LINES = HELP_LINES (FILE)           help text of a file: its first block of comments, without the signs
% BODY = HELP_LINES (FILE, HEADING)   lines of a section: from its heading to the next line that is not indented
function lines = help_lines (file, heading)
  lines = strsplit (fileread (file), sprintf ('\n'));
  last = find (cellfun (@(l) isempty (l) || l(1) ~= '%', lines), 1) - 1;
  lines = regexprep (lines(1:last), '^% ?', '');
  if nargin < 2, return, end
  at = find (strncmp (lines, heading, numel (heading)), 1);
  if isempty (at), lines = {}; end
  next = find (cellfun (@(l) ~isempty (l) && l(1) ~= ' ', lines(at + 1:end)), 1);
  if isempty (next), next = numel (lines) - at + 1; end
  lines = lines(at + 1:at + next - 1);
end
