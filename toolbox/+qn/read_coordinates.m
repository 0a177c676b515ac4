% QN.READ_COORDINATES  reads a matrix from coordinate text: one entry per line, by node and degree of freedom or by row and column
%
% Purpose
%   Solvers print their global matrices line by line: row node, row degree of freedom, column node, column degree of freedom and
%   value between commas; or row, column and value. Matrix Market files, which have a header, are read by qn.mmread.
%
% Calls
%   A = qn.read_coordinates (FILE)
%   [A, DOFS] = qn.read_coordinates (FILE, ...)
%
% Input
%   FILE   name of the file. Lines with ** are comments; of keywords only *MATRIX INPUT with TYPE and NAME is read
%   Names and values
%     'form'       'dofs': five fields a line, with commas; 'rows': row, column, value; 'sized': the same after a line of rows, columns
%                  and number of entries. Nothing in a file tells the last two apart ('dofs')
%     'symmetric'  true: one triangle, or entries of either, stand for both, and entries on both sides are one and must agree; false:
%                  an unsymmetric matrix, as it stands ([]: what the keyword says, else true for 'dofs' and false for the others)
%     'repeated'   'refuse' an entry that comes twice, or 'add' them, as for files written element by element ('refuse')
%     'dofs'       for 'rows' and 'sized': name of a file with a line "node.dof" for each row ('')
%
% Output
%   A      sparse matrix. With 'dofs' square, its rows in the order of DOFS: nodes ascend, degrees of freedom within them; negative
%          nodes, unknowns that the solver made itself, come last
%   DOFS   struct: node (n x 1 numbers, or cell of texts where a node is not a number), dof (n x 1), huge (n x 1 truth values: a diagonal
%          of at least 1e30, by which some solvers hold a degree of freedom; A(~DOFS.huge, ~DOFS.huge) is without them). Without
%          nodes node and dof are []
%
% Errors
%   qn:input  the file cannot be opened, a line has another number of fields or one that is not a number, an entry comes twice, is outside
%             the matrix or differs from its mirror image; the message has file and line
%
% Example
%   file = [tempname() '.mtx'];
%   id = fopen (file, 'w');
%   fprintf (id, '12,1, 12,1, 4.0E+00\n12,1, 12,2, -1.0E+00\n12,2, 12,2, 3.0E+00\n');
%   fclose (id);
%   [k, dofs] = qn.read_coordinates (file);
%   delete (file);
%
% See also qn.mmread, qn.read_hb, qn.modal
function [a, dofs] = read_coordinates (file, varargin)
  who = 'qn.read_coordinates';
  if nargin < 1, error ('qn:input', '%s: the name of a file expected; see help %s', who, who); end
  o = qn.impl.options (who, struct ('form', 'dofs', 'symmetric', [], 'repeated', 'refuse', 'dofs', ''), varargin);
  one_of (who, 'form', o.form, {'dofs', 'rows', 'sized'});
  one_of (who, 'repeated', o.repeated, {'refuse', 'add'});
  by_node = strcmp (o.form, 'dofs');
  t = qn.impl.formats.open_text (who, file);
  if strncmp (t.text, '%%MatrixMarket', 14), error ('qn:input', '%s: %s is a Matrix Market file; see qn.mmread', who, file); end
  [lines, said] = qn.impl.formats.keywords (t);
  if isempty (o.symmetric), o.symmetric = said; end
  if isempty (o.symmetric), o.symmetric = by_node; end
  o.symmetric = qn.impl.flag (who, 'symmetric', o.symmetric);
  [first, last, lines] = qn.impl.formats.words_of (t, lines, by_node);
  if isempty (first), error ('qn:input', '%s: %s has no entries', who, file); end
  fields = 3 + 2 * by_node;
  if size (first, 2) ~= fields
    qn.impl.formats.refuse (t, lines(1), '%d fields; the form ''%s'' has %d: "%s"', size (first, 2), o.form, fields, ...
                            qn.impl.formats.shown (t.text(t.first(lines(1)):t.last(lines(1)))));
  end
  dofs = struct ('node', [], 'dof', []);
  if by_node
    [i, j, v, dofs] = pairs (t, lines, first, last);
    dims = numel (dofs.dof) * [1 1];
  else
    [i, j, v, dims, lines] = qn.impl.formats.coordinate_rows (t, lines, first, last, strcmp (o.form, 'sized'));
  end
  kind = 'general';
  if o.symmetric
    kind = 'symmetric';
    if strcmp (o.form, 'rows'), dims = max (dims) * [1 1]; end
    if dims(1) ~= dims(2), qn.impl.formats.refuse (t, 1, 'a matrix of %d x %d, which cannot be symmetric', dims); end
  end
  say = @(k, varargin) qn.impl.formats.refuse (t, lines(k), varargin{:});
  a = qn.impl.formats.entries (say, i, j, v, dims, kind, o.repeated);
  if ~by_node && ~isempty (o.dofs), dofs = qn.impl.formats.dof_list (who, o.dofs, dims(1)); end
  dofs.huge = full (abs (diag (a))) >= 1e30;
end

function one_of (who, name, x, words)
  if ischar (x) && any (strcmp (x, words)), return, end
  got = sprintf ('an array of class %s', class (x));
  if ischar (x), got = sprintf ('''%s''', x); end
  error ('qn:input', '%s: "%s" is ''%s'', not %s', who, name, strjoin (words, ''' or '''), got);
end

function [i, j, v, dofs] = pairs (t, lines, first, last)
  v = qn.impl.formats.column_of (t, lines, first(:, 5), last(:, 5), 'the value', false);
  r = qn.impl.formats.column_of (t, lines, first(:, 2), last(:, 2), 'the degree of freedom of the row', true);
  c = qn.impl.formats.column_of (t, lines, first(:, 4), last(:, 4), 'the degree of freedom of the column', true);
  nodes = qn.impl.formats.gather (t, [first(:, 1); first(:, 3)], [last(:, 1); last(:, 3)], 80);
  [x, good, unused, unused2, blank] = qn.impl.formats.parse (nodes);
  empty = find (blank, 1);
  if ~isempty (empty), qn.impl.formats.refuse (t, lines(1 + mod (empty - 1, numel (lines))), 'the node is missing'); end
  odd = find (any (nodes == '?', 2), 1);
  if ~isempty (odd)
    qn.impl.formats.refuse (t, lines(1 + mod (odd - 1, numel (lines))), 'the node "%s"; letters, digits and points expected', ...
                            strtrim (nodes(odd, :)));
  end
  if all (good & x == fix (x))
    nodes = x;
  else
    nodes = strtrim (cellstr (nodes));
  end
  [k, dofs] = qn.impl.formats.node_dofs (nodes, [r; c]);
  n = numel (v);
  [i, j] = deal (k(1:n), k(n + 1:end));
end
