% [FIELDS, KEY, NEXT] = BULK_FIELDS (T, K, LINE)  fields of a line of bulk data, as a cell of texts
%
% FIELDS begins with what is in the first eight columns, without its "*"; the data fields after it are 8, or 4 in the large form.
% KEY is that of the continuation that follows ('' without one). LARGE says which form it is.
function [fields, key, large] = bulk_fields (t, k, line)
  if any (line == char (9)), qn.impl.formats.refuse (t, k, 'a tab; fields stand in columns, which a tab leaves open'); end
  comma = find (line == ',', 1);
  if ~isempty (comma) && comma <= 10
    parts = strtrim (regexp (line, ',', 'split'));
    large = ~isempty (parts{1}) && any (parts{1} == '*');
    data = 8 - 4 * large;
    if numel (parts) > data + 2
      qn.impl.formats.refuse (t, k, '%d fields between commas; at most %d expected', numel (parts), data + 2);
    end
    parts(end + 1:data + 2) = {''};
  else
    large = any (line(1:min (8, end)) == '*');
    widths = 8 * ones (1, 10);
    if large, widths = [8 16 16 16 16 8]; end
    line(end + 1:80) = ' ';
    parts = strtrim (mat2cell (line(1:80), 1, widths));
  end
  key = parts{end};
  fields = parts(1:end - 1);
  if ~isempty (fields{1}) && ~any (fields{1}(1) == '+*'), fields{1} = strtrim (strrep (fields{1}, '*', '')); end
end
