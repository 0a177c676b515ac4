% DELETE  frees the handles of a chandle vector
%
% Purpose
%   Gives the handles back to the registry. H and its copies then refer to nothing; quarn refuses them as handles that do not
%   exist. Handles that are not registered any more are passed over. The value of a nonlinear element stays in memory until the
%   host ends: that is the module's rule.
%
% Calls
%   delete (H)
%
% Input
%   H   chandle vector
%
% Errors
%   Those of the module.
%
% Example
%   h = chandle (quarn ('chandleset', 1, qn.pack (sparse ([100 0; 0 200]))));
%   delete (h);
%
% See also chandle, quarn
function delete (h)
  registered = quarn ('chandleget');
  for k = 1:numel (h)
    i = h(k).index;
    if any (registered == i), quarn ('chandleclear', i); end
  end
end
