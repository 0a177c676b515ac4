% QN.ADVISE  how long the time step may be, from runs with h and h/2
%
% Purpose
%   Runs the set-up with its step and with half of it. The difference, with the order p of the scheme, gives the error of either
%   (Richardson): e(h) = |x(h) - x(h/2)| 2^p / (2^p - 1). From it follows the step for a wanted error.
%
% Calls
%   qn.advise (SIM, ...)
%   A = qn.advise (SIM, ...)
%
% Input
%   SIM   from qn.simulation; its loads must be functions or tables with times, so that they are known between the steps
%   Names and values
%     'rows'       observation rows or one degree of freedom to judge (those of the elements, else all modes)
%     'tolerance'  wanted error, relative to the greatest displacement (0.01)
%     'until'      time up to which to compare [s] (that of SIM)
%     'order'      true: a third run with h/4 measures the order instead of taking the scheme's (false). In motion with contacts
%                  the observed order is often lower.
%
% Output
%   A     struct: step [s], error and error_half (relative errors with h and h/2), order, advised (step for the tolerance [s]), text.
%         Without an output argument the text is printed.
%
% Errors
%   qn:input  the set-up continues an earlier run, or its loads are given step by step
%
% Example
%   model = qn.modal (4e4, 1, 'damping', 0.02);
%   sim = qn.simulation (model, 'step', 2e-3, 'until', 1, 'v0', 1);
%   qn.advise (sim, 'tolerance', 1e-3);
%
% See also qn.check, qn.simulation, qn.run
function advice = advise (sim, varargin)
  if nargin < 1, sim = []; end
  qn.impl.made_by ('qn.advise', sim, 'qn.simulation');
  who = 'qn.advise';
  o = qn.impl.options (who, struct ('rows', [], 'tolerance', 0.01, 'until', sim.time(end), 'order', false), varargin);
  if isempty (sim.options), error ('qn:input', '%s: a set-up that continues another or comes from a file cannot be made anew', who); end
  for k = 1:size (sim.options.load, 1)
    signal = sim.options.load{k, 2};
    if isnumeric (signal) && numel (signal) > 1 && size (signal, 1) ~= 2
      error ('qn:input', '%s: load %d is given step by step; give a function or a table with times', who, k);
    end
  end
  if isempty (o.rows)
    c = cat (1, sim.elements.observe);
    if isempty (c), c = eye (numel (sim.model.w)); end
  else
    c = qn.impl.looked_at (sim.model, o.rows, 'qn.advise: ');
  end
  steps = round (o.until / sim.step);
  coarse = c * trial (sim, steps, 1);
  fine = c * trial (sim, steps, 2);
  size_of = max (max (abs (fine)));
  if size_of == 0, error ('qn:input', '%s: nothing moves', who); end
  between = max (max (abs (coarse - fine))) / size_of;
  p = sim.scheme.order;
  if o.order
    finer = c * trial (sim, steps, 4);
    p = log2 (between / (max (max (abs (fine - finer))) / size_of));
    p = max (0.1, p);
  end
  e = between * 2 ^ p / (2 ^ p - 1);
  advised = sim.step * (o.tolerance / e) ^ (1 / p);
  text = sprintf (['step %.3g s: error %.2g of the greatest displacement; step %.3g s: %.2g (order %.2f). For %.2g take a step of ' ...
                   '%.2g s'], sim.step, e, sim.step / 2, e / 2 ^ p, p, o.tolerance, advised);
  if between > 0.5
    text = [text '. The two runs have little in common: shorten the step first; chaotic motion can only be compared by statistics'];
  end
  advice = struct ('step', sim.step, 'error', e, 'error_half', e / 2 ^ p, 'order', p, 'advised', advised, 'text', text);
  if nargout == 0
    fprintf ('%s\n', text);
    clear advice
  end
end

function q = trial (sim, steps, cut)
  o = sim.options;
  o.step = sim.step / cut;
  o.steps = steps * cut;
  o.until = [];
  o.times = [];
  o.every = cut;
  names = fieldnames (o);
  values = struct2cell (o);
  args = [names, values].';
  res = qn.run (qn.simulation (sim.model, args{:}), 'progress', false);
  q = res.q;
end
