% REMI  registry index of one element of a chandle vector
%
%   I = remi (H, K)
%
% Input
%   H   chandle vector
%   K   which element, from 1
%
% Output
%   I   the index that quarn ('chandleset', ...) returned for it. The module calls this method for every element of a list.
function i = remi (h, k)
  i = h(k).index;
end
