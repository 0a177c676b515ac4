% CHANDLE  vector of registered handles of quarn
%
% Purpose
%   A handle is an object that the compiled module keeps alive between calls: a matrix, a nonlinear element or an
%   integrator. The module knows it by an index. A chandle vector is how a list of them is passed to quarn ('residual', ...)
%   and quarn ('chandlediagnewmark', ...); it holds the indices only, so copies refer to the same objects.
%
% Calls
%   H = chandle (I)
%
% Input
%   I   indices as quarn ('chandleset', type, value) returned them, in the order in which the handles are to be called;
%       [] makes an empty vector; a chandle vector is returned as it is
%
% Output
%   H   object of class chandle with one element per index
%
% What can be done with it
%   numel (H)     number of handles
%   H(k), [H G]   part of a vector, vectors one after another
%   remi (H, k)   index of element k
%   H             at the prompt: what each handle is
%   delete (H)    frees the handles; nothing is freed when H is only cleared
%
% Errors
%   I is not an array of real numbers. Whether the handles exist is asked when the vector is used.
%
% Example
%   k = struct ('ir', int32 ([0; 1]), 'jc', int32 ([0; 1; 2]), 'pr', [100; 200], 'dims', [2 2], 'trans', 0);
%   h = chandle (quarn ('chandleset', 1, k));
%   r = zeros (2, 1);
%   quarn ('residual', r, h, ones (2, 1), zeros (2, 1), [], [0 0]);   % r is now [100; 200]
%   delete (h);
%
% See also quarn, v_handle, qn.describe
function h = chandle (i)
  if nargin < 1, i = []; end
  if isa (i, 'chandle')
    h = i;
    return
  end
  if ~isnumeric (i) || ~isreal (i)
    error ('qn:input', 'chandle: "I" must be indices, as quarn (''chandleset'', ...) returns them, got an array of class %s', class (i));
  end
  h = class (struct ('index', reshape (num2cell (double (i(:))), 1, [])), 'chandle');
end
