% QN.READ_HB  reads a matrix from a Harwell-Boeing file, with its right-hand sides
%
% Purpose
%   Finite-element programs export assembled stiffness and mass matrices in this text format of fixed columns. The order of the
%   equations is that of their solver: a mapping file beside it says which node and degree of freedom each equation is.
%
% Calls
%   A = qn.read_hb (FILE)
%   [A, INFO] = qn.read_hb (FILE, ...)
%
% Input
%   FILE   name of the file: real, complex or pattern (read as ones); symmetric, Hermitian, skew, unsymmetric or rectangular;
%          assembled, or element matrices, which are added up
%   Names and values
%     'mapping'  name of the mapping file, with a line for each equation: its number, node and label ('')
%
% Output
%   A      sparse matrix, with both triangles of a symmetric one filled in
%   INFO   struct: title, key, type (such as RSA), right (n x p right-hand sides, [] without any), guess and solution (what was stored
%          with them), node (n x 1) and label (n x 1 cell of texts such as UX or ROTY) from the mapping file, else []
%
% Errors
%   qn:input  the file cannot be opened or ends early, a number in it is malformed or makes no sense, counts do not agree, both triangles
%             are there and differ; the message has file and line. Right-hand sides in the form of the matrix and binary files are
%             refused. The warning qn:file says that a count is wrong that nothing depends on.
%
% Example
%   file = [tempname() '.matrix'];
%   id = fopen (file, 'w');
%   fprintf (id, '%-72s%-8s\n', 'two masses', 'DEMO');
%   fprintf (id, '%14d%14d%14d%14d%14d\n', 3, 1, 1, 1, 0);
%   fprintf (id, '%-14s%14d%14d%14d%14d\n', 'RSA', 2, 2, 3, 0);
%   fprintf (id, '%-16s%-16s%-20s%-20s\n', '(3I5)', '(3I5)', '(3D15.7)', '');
%   fprintf (id, '%5d%5d%5d\n', 1, 3, 4, 1, 2, 2);
%   fprintf (id, ' 2.0000000D+00 -1.0000000D+00  1.0000000D+00\n');
%   fclose (id);
%   full (qn.read_hb (file))
%   delete (file);
%
% See also qn.read_coordinates, qn.read_op4, qn.mmread, qn.modal
function [a, info] = read_hb (file, varargin)
  who = 'qn.read_hb';
  if nargin < 1, error ('qn:input', '%s: the name of a file expected; see help %s', who, who); end
  o = qn.impl.options (who, struct ('mapping', ''), varargin);
  t = qn.impl.formats.open_text (who, file);
  h = qn.impl.formats.hb_header (t);
  if h.type(3) == 'A'
    [a, next] = qn.impl.formats.hb_assembled (t, h);
  else
    [a, next] = qn.impl.formats.hb_elements (t, h);
  end
  info = struct ('title', h.title, 'key', h.key, 'type', h.type);
  [info.right, info.guess, info.solution] = qn.impl.formats.hb_vectors (t, h, next);
  info.node = [];
  info.label = [];
  if ~isempty (o.mapping)
    dofs = qn.impl.formats.hb_mapping (who, o.mapping, h.rows);
    info.node = dofs.node;
    info.label = dofs.label;
  end
end
