% [LIST, SKIPPED] = BULK_ENTRIES (T)  the DMIG entries of bulk data: rows {line, data fields}, continuations joined
%
% Comments, other entries and what comes before and after are passed over; DMI, DMIAX and DMIJ are refused by name, and so is an entry whose
% last field says that it goes on (+NAME) where it does not. SKIPPED are the names of the other entries between "BEGIN BULK", where there
% is one, and ENDDATA, '?' for a line that begins with no name.
function [list, skipped] = bulk_entries (t)
  list = cell (0, 2);
  skipped = cell (1, numel (t.first));
  passed = 0;
  open = false;
  key = '';
  t.text = upper (t.text);
  for k = 1:numel (t.first)
    line = t.text(t.first(k):t.last(k));
    dollar = find (line == '$', 1);
    if ~isempty (dollar), line = line(1:dollar - 1); end
    if all (line == ' '), continue, end
    head = line(1:min (8, end));
    follows = any (line(1) == '+*,') || all (head == ' ');
    if follows && ~open, continue, end
    if ~follows
      if open, all_there (t, list, key); end
      word = strtrim (regexprep (head, '[,*].*$', ''));
      open = strcmp (word, 'DMIG');
      if strcmp (word, 'ENDDATA'), break, end
      if any (strcmp (word, {'DMI', 'DMIAX', 'DMIJ'})), qn.impl.formats.refuse (t, k, 'an entry %s; only DMIG is read', word); end
      if ~isempty (regexp (line, '^\s*BEGIN(\s|$)', 'once'))
        passed = 0;
        continue
      end
      if ~open
        if isempty (regexp (word, '^[A-Z]\w{0,7}$', 'once')), word = '?'; end
        passed = passed + 1;
        skipped{passed} = word;
        continue
      end
    end
    [fields, next] = qn.impl.formats.bulk_fields (t, k, line);
    if follows
      mine = bare (fields{1});
      wanted = bare (key);
      if ~isempty (mine) && ~isempty (wanted) && ~strcmp (mine, wanted)
        qn.impl.formats.refuse (t, k, 'the continuation "%s"; "%s" expected', qn.impl.formats.shown (mine), qn.impl.formats.shown (wanted));
      end
      list{end, 2} = [list{end, 2}, fields(2:end)];
      list{end, 1} = [list{end, 1}, k * ones(1, numel (fields) - 1)];
    else
      list(end + 1, :) = {k * ones(1, numel (fields) - 1), fields(2:end)};
    end
    key = next;
  end
  if open, all_there (t, list, key); end
  skipped = skipped(1:passed);
end

function all_there (t, list, key)
  if numel (key) > 1 && any (key(1) == '+*') && ~isempty (bare (key))
    qn.impl.formats.refuse (t, list{end, 1}(end), 'the entry goes on in "%s", which does not follow', qn.impl.formats.shown (key));
  end
end

% A continuation's name without its sign.
function key = bare (key)
  if ~isempty (key) && any (key(1) == '+*'), key = key(2:end); end
  if ~isempty (key), key = strtrim (key); end
end
