% QN.SCHEME  parameters of Newmark's time integration (Newmark, 1959)
%
% Purpose
%   Turns the name of a scheme into beta and gamma, with what is known about its stability.
%
% Calls
%   S = qn.scheme (NAME)
%   S = qn.scheme ([BETA GAMMA])
%   S = qn.scheme ('damped', RHO), where a scheme is an option: {'damped', RHO}
%
% Input
%   NAME   'average'  average acceleration, 1/4 and 1/2: stable for any step, no numerical damping
%          'linear'   linear acceleration, 1/6 and 1/2: more accurate, stable below w*h = 3.46
%          'damped'   numerical damping of high modes: RHO is what a very high mode keeps of its amplitude in one step, between 0
%                     and 1 (0.9). First order only.
%   BETA, GAMMA        your own parameters, GAMMA at least 1/2
%
% Output
%   S      struct: beta, gamma, order, limit (largest stable w*h of a linear undamped mode, Inf if there is none), name
%
% Errors
%   qn:input  unknown name, GAMMA below 1/2, BETA not above 0, RHO outside (0, 1], or a value that is not finite
%
% Example
%   s = qn.scheme ('damped', 0.8)
%
% See also qn.simulation, qn.check
function s = scheme (name, rho)
  if nargin < 1, error ('qn:input', 'qn.scheme: the name of a scheme expected; see help qn.scheme'); end
  name = qn.impl.chars (name);
  if isstruct (name)
    s = name;
    return
  end
  if iscell (name)
    s = qn.scheme (name{:});
    return
  end
  if isnumeric (name)
    name = qn.impl.numbers ('qn.scheme', '[BETA GAMMA]', name, 2, 'each', 'beta and gamma');
    if ~(name(1) > 0) || ~(name(2) >= 0.5)
      error ('qn:input', 'qn.scheme: [beta gamma] expected, beta above 0, gamma at least 1/2, got %s', mat2str (name));
    end
    s = struct ('beta', name(1), 'gamma', name(2), 'name', sprintf ('beta %g, gamma %g', name(1), name(2)));
  else
    if ~ischar (name), error ('qn:input', 'qn.scheme: the name of a scheme or [beta gamma] expected, got class %s', class (name)); end
    switch name
      case 'average'
        s = struct ('beta', 1 / 4, 'gamma', 1 / 2, 'name', 'average acceleration');
      case 'linear'
        s = struct ('beta', 1 / 6, 'gamma', 1 / 2, 'name', 'linear acceleration');
      case 'damped'
        if nargin < 2, rho = 0.9; end
        rho = qn.impl.numbers ('qn.scheme', 'RHO', rho, [1 1], 'above', 0, 'to', 1);
        gamma = (3 - rho) / (2 * (1 + rho));
        s = struct ('beta', (gamma + 0.5) ^ 2 / 4, 'gamma', gamma, 'name', sprintf ('numerical damping, ratio %g', rho));
      otherwise
        error ('qn:input', 'qn.scheme: ''average'', ''linear'', ''damped'' or [beta gamma] expected, got ''%s''', name);
    end
  end
  s.order = 1 + (s.gamma == 0.5);
  s.limit = Inf;
  if 2 * s.beta < s.gamma, s.limit = 1 / sqrt (s.gamma / 2 - s.beta); end
end
