% QN.READ_DMIG  reads the matrices of Nastran DMIG entries from bulk data or a punch file
%
% Purpose
%   Condensed stiffness and mass matrices come as such entries, each term with the points and components that it joins. Small, large and
%   free fields may be mixed; other entries of bulk data are passed over, and counted.
%
% Calls
%   [LIST, SKIPPED] = qn.read_dmig (FILE)
%   [A, ROWS, COLUMNS, SKIPPED] = qn.read_dmig (FILE, NAME)
%
% Input
%   FILE   name of the file
%   NAME   name of one matrix, in any case of letters
%
% Output
%   LIST      1 x p struct array, one for each matrix in the file: name, matrix (sparse; of a symmetric one with both triangles),
%             form ('square', 'rectangular' or 'symmetric'), rows and columns (what they are: one line [point component] each, in
%             ascending order, component 0 for scalar points). What has no term in the file has no row and no column.
%   A         the matrix of that name, with its ROWS and COLUMNS
%   SKIPPED   cell, the names of the entries that were passed over, each as often as it was; lines that begin with no name are '?'
%   The warning qn:file counts them; warning ('off', 'qn:file') silences it.
%
% Errors
%   qn:input  the file cannot be opened, a field holds no number or one without its decimal point, a term comes twice or differs from
%             its mirror image, a matrix has no head or two, or no matrix has that name; the message has file and line. Entries DMI,
%             DMIAX and DMIJ are refused.
%
% Example
%   file = [tempname() '.pch'];
%   id = fopen (file, 'w');
%   fprintf (id, 'DMIG,KAA,0,6,2,0\n');
%   fprintf (id, 'DMIG*   KAA                           12               1\n');
%   fprintf (id, '*                     12               1 4.000000000D+03\n');
%   fclose (id);
%   [k, dofs] = qn.read_dmig (file, 'KAA');
%   delete (file);
%
% See also qn.read_op4, qn.read_coordinates, qn.modal
function [list, rows, columns, skipped] = read_dmig (file, name)
  who = 'qn.read_dmig';
  if nargin < 1, error ('qn:input', '%s: the name of a file expected; see help %s', who, who); end
  t = qn.impl.formats.open_text (who, file);
  [entries, skipped] = qn.impl.formats.bulk_entries (t);
  [heads, terms] = qn.impl.formats.dmig_terms (t, entries);
  if isempty (heads) && isempty (terms.line), error ('qn:input', '%s: %s has no DMIG entries', who, file); end
  known = {heads.name};
  for k = 1:numel (heads)
    if any (strcmp (known{k}, known(1:k - 1))), qn.impl.formats.refuse (t, heads(k).line, 'a second head of the matrix "%s"', known{k}); end
  end
  k = find (~ismember (terms.name, known), 1);
  if ~isempty (k), qn.impl.formats.refuse (t, terms.line(k), 'terms of "%s", which has no head', terms.name{k}); end
  list = struct ('name', {}, 'matrix', {}, 'form', {}, 'rows', {}, 'columns', {});
  for h = heads
    own = strcmp (terms.name, h.name);
    list(end + 1) = qn.impl.formats.dmig_matrix (t, h, terms.place(own, :), terms.x(own, :), terms.line(own));
  end
  if ~isempty (skipped)
    warning ('qn:file', '%s: %s, passed over besides DMIG: %s', who, file, qn.impl.formats.counted (skipped));
  end
  [rows, columns] = deal (skipped, []);
  if nargin < 2, return, end
  name = qn.impl.chars (name);
  if ~ischar (name), error ('qn:input', '%s: "NAME" must be a text, got an array of class %s', who, class (name)); end
  k = find (strcmpi (known, name));
  if isempty (k), error ('qn:input', '%s: %s has no matrix named "%s"; it has %s', who, file, name, strjoin (known, ', ')); end
  [list, rows, columns] = deal (list(k).matrix, list(k).rows, list(k).columns);
end
