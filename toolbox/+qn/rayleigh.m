% QN.RAYLEIGH  coefficients of proportional damping from two damping ratios
%
% Purpose
%   alpha*M + beta*K has the damping ratio (alpha/w + beta*w)/2 at the angular frequency w. Two ratios fix both.
%
% Calls
%   AB = qn.rayleigh (HERTZ, ZETA)
%
% Input
%   HERTZ  two frequencies [Hz]
%   ZETA   the damping ratio at each, or one for both
%
% Output
%   AB     [alpha beta] [1/s, s]
%
% Errors
%   qn:input  not two different positive frequencies, or not one or two finite ratios
%
% Example
%   ab = qn.rayleigh ([2 20], 0.03);
%   model = qn.modal (1e6 * [2 -1; -1 1], eye (2), 'rayleigh', ab);
%
% See also qn.modal
function ab = rayleigh (hertz, zeta)
  if nargin < 2, error ('qn:input', 'qn.rayleigh: two frequencies and their damping ratios expected; see help qn.rayleigh'); end
  hertz = qn.impl.numbers ('qn.rayleigh', 'HERTZ', hertz, 2, 'above', 0, 'each', 'two different frequencies');
  if hertz(1) == hertz(2), error ('qn:input', 'qn.rayleigh: "HERTZ" must be two different frequencies, got %g twice', hertz(1)); end
  ratios = 2;
  if numel (zeta) == 1, ratios = 1; end
  zeta = qn.impl.numbers ('qn.rayleigh', 'ZETA', zeta, ratios, 'each', 'one a frequency or one for both');
  w = 2 * pi * hertz(:);
  ab = ([1 ./ w, w] / 2 \ (zeta(:) .* ones (2, 1))).';
end
