% QN.ADVISE  how long the time step may be, from runs with h, h/2 and h/4
%
% Purpose
%   Runs the set-up with its step, half and a quarter of it. The two differences give the order that the error really has in
%   this set-up - contacts, friction and Maxwell elements lower it below that of the scheme - and with it the error and the step for a
%   wanted one (Richardson). Between the first and the second order the error is taken as a h + b h^2, so that what is small now and
%   of first order counts when the step is shortened. A longer step is proposed only after a run with it kept the tolerance and
%   qn.check has no error to name; a shorter one down to h/64, from which to ask again.
%   Where the error cannot be told - the runs grow, have little in common (chaos), or do not converge - the text
%   says so, error and order are NaN, and the proposal is a step from which to ask again.
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
%     'order'      false: two runs only. The order is then not known (NaN), and the first is taken, which is on the safe side. (true)
%
% Output
%   A     struct: step [s], error and error_half (relative errors with h and h/2), order (as measured), advised (step for the
%         tolerance [s], always a positive number), limit (step from which on the motion grows, if that had to be found
%         [s], else NaN), sure (the error is known: true or false), text. Without an output argument the text is printed.
%
% Errors
%   qn:input  the set-up continues an earlier run, its loads are given step by step, or nothing moves
%
% Example
%   model = qn.modal (4e4, 1, 'damping', 0.02);
%   sim = qn.simulation (model, 'step', 2e-3, 'until', 1, 'v0', 1);
%   qn.advise (sim, 'tolerance', 1e-3);
%
% See also qn.check, qn.simulation, qn.run
function advice = advise (sim, varargin)
  if nargin < 1, sim = []; end
  qn.impl.expect_result_of ('qn.advise', sim, 'qn.simulation');
  who = 'qn.advise';
  o = qn.impl.options (who, struct ('rows', [], 'tolerance', 0.01, 'until', sim.time(end), 'order', true), varargin);
  qn.impl.scalar (who, 'tolerance', o.tolerance, realmin ());
  qn.impl.scalar (who, 'until', o.until, sim.step / 2);
  if isempty (sim.options), error ('qn:input', '%s: a set-up that continues another or comes from a file cannot be made anew', who); end
  known_between (who, 'load', sim.options.load);
  known_between (who, 'base', sim.options.base);
  if isempty (o.rows)
    c = cat (1, sim.elements.observe);
    if isempty (c), c = eye (numel (sim.model.w)); end
  else
    c = qn.impl.observation_rows (sim.model, o.rows, 'qn.advise: ', 'rows');
  end
  cuts = [1 2 4];
  if ~isequal (o.order, true), cuts = [1 2]; end
  [x, runs] = trials (sim, round (o.until / sim.step), cuts, c);
  advice = qn.impl.judge_steps (sim, x, runs, o.tolerance, @(k) shown (sim, k, floor (round (o.until / sim.step) / k), c));
  if nargout == 0
    fprintf ('%s\n', advice.text);
    clear advice
  end
end

function known_between (who, name, list)
  for k = 1:size (list, 1)
    signal = list{k, 2};
    if isnumeric (signal) && numel (signal) > 1 && size (signal, 1) ~= 2
      error ('qn:input', '%s: %s %d is given step by step; give a function or a table with times', who, name, k);
    end
  end
end

% Motions with the step cut so, at the same times; [] where it grows. A tenfold motion of the shortest step is no motion, but growth.
function [x, runs] = trials (sim, steps, cuts, c)
  x = cell (size (cuts));
  runs = cell (size (cuts));
  for k = 1:numel (cuts), [x{k}, runs{k}] = shown (sim, 1 / cuts(k), steps, c); end
  size_of = cellfun (@(y) max ([0; abs(y(:))]), x);
  least = min ([size_of(~cellfun (@isempty, x)), Inf]);
  if least == 0, error ('qn:input', 'qn.advise: nothing moves'); end
  for k = find (size_of > 10 * least), x{k} = []; end
end

% Motion over STEPS steps of SIM, each FACTOR times as long, at whole multiples of the step of SIM or of the longer one.
function [x, res] = shown (sim, factor, steps, c)
  was = warning ('off', 'all');
  back = onCleanup (@() warning (was));
  cut = max (1, round (1 / factor));
  res = qn.run (qn.impl.with_step (sim, sim.step * factor, steps * cut, cut), 'progress', false, 'check', false);
  x = [];
  if res.complete && all (isfinite (res.q(:))), x = c * res.q; end
end
