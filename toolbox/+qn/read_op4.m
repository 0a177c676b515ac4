% QN.READ_OP4  reads the matrices of a Nastran OUTPUT4 file
%
% Purpose
%   Text or binary is seen from the file, and so are the byte order and the width of whole numbers of a binary one. Columns may be
%   dense or sparse, in either sparse form.
%
% Calls
%   LIST = qn.read_op4 (FILE)
%   A = qn.read_op4 (FILE, NAME)
%
% Input
%   FILE   name of the file
%   NAME   name of one matrix
%
% Output
%   LIST   1 x p struct array, one for each matrix in the file: name, matrix (sparse; of a symmetric one with both triangles), form
%          ('square', 'rectangular', 'lower', 'upper' or 'symmetric') and precision (1 single, 2 double). The file does not
%          say which degree of freedom a row is.
%   A      the matrix of that name
%
% Errors
%   qn:input  the file cannot be opened, is of another kind or ends early, a number is malformed or does not fit the head of its matrix, or no
%             matrix has that name; the message has file and line, or the byte where a record begins. Diagonal and identity forms,
%             records in several pieces and double precision with whole numbers of 64 bits are refused.
%
% Example
%   file = [tempname() '.op4'];
%   id = fopen (file, 'w');
%   fprintf (id, '%8d%8d%8d%8d%-8s%s\n', 2, 2, 6, 2, 'KAA', '1P,3E23.16');
%   fprintf (id, '%8d%8d%8d\n%23.16E%23.16E\n', 1, 1, 2, 2e4, -1e4);
%   fprintf (id, '%8d%8d%8d\n%23.16E%23.16E\n', 2, 1, 2, -1e4, 1e4);
%   fprintf (id, '%8d%8d%8d\n%23.16E\n', 3, 1, 1, 1);
%   fclose (id);
%   k = qn.read_op4 (file, 'KAA');
%   delete (file);
%
% See also qn.read_dmig, qn.read_hb, qn.mmread, qn.modal
function list = read_op4 (file, name)
  who = 'qn.read_op4';
  if nargin < 1, error ('qn:input', '%s: the name of a file expected; see help %s', who, who); end
  t = qn.impl.formats.open_text (who, file);
  [order, word] = kind_of (t);
  if isempty (order)
    list = qn.impl.formats.op4_text (t);
  else
    list = qn.impl.formats.op4_binary (t, order, word);
  end
  if nargin < 2, return, end
  name = qn.impl.chars (name);
  if ~ischar (name), error ('qn:input', '%s: "NAME" must be a text, got an array of class %s', who, class (name)); end
  k = find (strcmp ({list.name}, name));
  if numel (k) ~= 1
    error ('qn:input', '%s: %s has %d matrices named "%s"; it has %s', who, file, numel (k), name, strjoin ({list.name}, ', '));
  end
  list = list(k).matrix;
end

% A binary file begins with the length of its first record, 24 bytes or 48 with whole numbers of eight.
function [order, word] = kind_of (t)
  order = '';
  word = 0;
  if numel (t.text) < 4, error ('qn:input', '%s: %s has %d bytes, and is no file of this kind', t.who, t.file, numel (t.text)); end
  first = double (t.bytes(1:4));
  lengths = [24 48];
  if any (first(1) == lengths) && ~any (first(2:4))
    [order, word] = deal ('little', first(1) / 6);
  elseif any (first(4) == lengths) && ~any (first(1:3))
    [order, word] = deal ('big', first(4) / 6);
  elseif any (first == 0)
    error ('qn:input', '%s: %s is neither text nor a binary file that begins with a record of 24 or 48 bytes', t.who, t.file);
  end
end
