% Puts the tables of a run into a document: octave-cli -qf update_document.m OUT_DIR DOCUMENT.md
%
% The document says where: a line <!-- bench: GROUP / VARIANT -->, the table, a line <!-- end -->. A * has a row for each variant, a group alone
% is a table of parts; "machine" says what machine it was.
args = argv ();
addpath (fileparts (mfilename ('fullpath')));
run_of = jsondecode (fileread (fullfile (args{1}, 'results.json')));
records = run_of.results;
if ~iscell (records), records = num2cell (records); end
records = reshape (records, 1, []);
text = fileread (args{2});
[marks, parts] = regexp (text, '<!-- bench: ([^\n]*) -->\n.*?<!-- end -->', 'tokens', 'split');
for k = 1:numel (marks)
  what = strsplit (marks{k}{1}, ' / ');
  if strcmp (what{1}, 'machine')
    body = [run_of.machine, sprintf('\n')];
  elseif strcmp (what{1}, 'equations')
    body = equation_table (records, what{2});
  elseif numel (what) == 1
    body = parts_table (records, what{1});
  else
    body = variant_table (records, what{1}, what{2});
  end
  marks{k} = sprintf ('<!-- bench: %s -->\n\n%s\n<!-- end -->', marks{k}{1}, body);
end
f = fopen (args{2}, 'w');
for k = 1:numel (parts)
  fputs (f, parts{k});
  if k <= numel (marks), fputs (f, marks{k}); end
end
fclose (f);
