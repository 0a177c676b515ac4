% V_HANDLE  object that stands for a matrix held in its field "file"
%
% Purpose
%   Wherever quarn takes a matrix it takes a v_handle instead and works on what the field "file" holds. Copies of the object share
%   that data: what quarn ('setsparse', V, ...) writes shows in all of them.
%
% Calls
%   V = v_handle (FILE)
%
% Input
%   FILE   matrix: a structure as qn.pack gives it, or a full double matrix
%
% Output
%   V      object of class v_handle
%
% What can be done with it
%   get (V, 'file')   the matrix
%   V                 at the prompt: what the matrix is
%
% Errors
%   quarn ('chandleset', ...) does not take a v_handle as the value of a handle.
%
% Example
%   v = v_handle (qn.pack (sparse ([4 0; 1 5])));
%   y = zeros (2, 1);
%   quarn ('tbbp', v, [1; 1], y);
%
% See also qn.pack, qn.unpack, chandle
function v = v_handle (file)
  if nargin < 1, file = []; end
  if isa (file, 'v_handle')
    v = file;
    return
  end
  v = class (struct ('file', {file}), 'v_handle');
end
