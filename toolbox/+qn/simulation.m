% QN.SIMULATION  everything that a time simulation needs, in one structure
%
% Purpose
%   Puts model, time steps, loads and nonlinear elements together, finds the initial acceleration and lays out the tables in the
%   way the module reads them. Nothing is computed beyond that; see qn.check and qn.run.
%
% Calls
%   SIM = qn.simulation (MODEL, NAME, VALUE, ...)
%
% Input
%   MODEL       from qn.modal, m modes
%   Names and values
%     'step'      time step h [s], needed
%     'until'     time at which to end [s], rounded to whole steps; or
%     'steps'     number of steps
%     'scheme'    see qn.scheme ('average')
%     'load'      {SHAPE, SIGNAL; ...}: SHAPE is the modal force of a unit load (m values; see qn.load_at, qn.base), SIGNAL is a
%                 function of a row of times, or a 2 x k table [times; values], linear in between and zero outside, or one value for
%                 every time point [N, or m/s^2 for base motion]
%     'base'      {PUSH, SIGNAL; ...}: motion of the base, PUSH as for qn.base, SIGNAL its acceleration [m/s^2]. The same as a load of
%                 qn.base (MODEL, PUSH); displacements are relative to the base, and qn.acceleration knows what to add.
%     'elements'  {LAW, C; ...} or {LAW, C, B; ...}: LAW from qn.law or a recipe, C observation rows (qn.observe) or numbers of
%                 degrees of freedom as for qn.displacement, B rows through which the force acts (C). A bank of laws shares one C.
%     'speed'     2 x k table [times; speeds] of a run-up [s, rad/s], linear in between, over all of the run; the model comes from
%                 qn.modal with 'G' (whose own speed is ignored here). Every step has its own speed: the scheme with the gyroscopic
%                 matrix of that time, and with the angular acceleration times 'KG', the mean of both sides at a knot. Knots that are
%                 not on a step are fine; with 'KG' put them there. Loads are not made from it, not even of an unbalance
%     'varying'   {'K' or 'C', MATRIX, TABLE; ...}: a further stiffness [N/m] or damping [N s/m] of the structure, any real n x n, times a
%                 factor of time, TABLE = [times; factors], linear in between, two equal times a jump, over all of the run: a support that
%                 wears, a cracked shaft, a gear mesh. Implicit, as the model is
%     'every'     results are kept at every k-th step (1), or
%     'times'     at the steps next to these times [s]; those outside the run give its first or last step
%     'u0', 'v0'  initial displacement and velocity of the structure [m, m/s] (0); what the modes do not hold of them is left out, and
%                 qn.check and qn.run warn where that is a tenth by mass. Friction of qn.slider, 'dahl' and 'clima2' is 0 there;
%                 'maxwell', 'boucwen' and 'stickslip' begin as if moved there from 0 at once; or
%     'q0', 'dq0' initial modal state
%     'a0'        'consistent': initial acceleration from the equation of motion, or m modal values ('consistent')
%     'start'     result of an earlier run: its last state, its laws' memory and its time are where this one begins. Model, laws, step,
%                 scheme and loads are those given here. With other modes the state goes through the displacements of the structure
%                 (the same degrees of freedom); more than 1 % that the new modes cannot represent is refused, more than 0.01 % is
%                 said in the warning qn:start. An element inherits the memory of the earlier one with the same kind of law at the
%                 same place (rows); of several there, of that with the same parameters, or where these changed and the number did not, in
%                 their order. One with a memory that finds none is refused, earlier ones that are left out are dropped.
%     'fresh'     rows of "elements" that begin without a memory, as in a first run, though there is a "start"
%
% Output
%   SIM   struct: model (with 'speed' that at standstill), scheme, step, time (1 x steps+1) [s], saved (columns of time), shapes, loads,
%         elements, start, ...
%
% Errors
%   qn:input  something is missing, unknown, of the wrong size or no finite real number, or the times of a table do not ascend; the
%             message names argument, place and value and says what is expected
%
% Example
%   model = qn.modal (4e4, 1, 'damping', 0.02);
%   sim = qn.simulation (model, 'step', 1e-3, 'until', 1, 'load', {qn.load_at(model, 1), @(t) 100 * (t < 0.1)}, ...
%                        'elements', {qn.cubic('stiffness', 1e8), qn.observe(model, 1)});
%   res = qn.run (sim);
%
% See also qn.modal, qn.law, qn.scheme, qn.check, qn.advise, qn.run
function sim = simulation (model, varargin)
  who = 'qn.simulation';
  if nargin < 1, model = []; end
  qn.impl.expect_result_of (who, model, 'qn.modal');
  o = struct ('step', '<required>', 'until', [], 'steps', [], 'scheme', 'average', 'load', {{}}, 'base', {{}}, ...
              'elements', {{}}, 'every', 1, 'times', [], 'u0', [], 'v0', [], 'q0', [], 'dq0', [], 'a0', 'consistent', ...
              'start', [], 'fresh', [], 'speed', [], 'varying', {{}});
  o = qn.impl.options (who, o, varargin);
  o.step = qn.impl.scalar (who, 'step', o.step, realmin ());
  first = 0;
  if ~isempty (o.start)
    qn.impl.expect_result_of ([who ', "start"'], o.start, 'qn.run');
    qn.impl.not_diverged (who, o.start);
    % Times are counted from the same origin, in whole steps, so that a continued run sees the same bits.
    first = round (o.start.time_end / o.step);
    if abs (first * o.step - o.start.time_end) > 1e-6 * o.step
      error ('qn:input', '%s: the earlier run ended at %g s, which is no multiple of the step; a step of %.17g s fits', who, ...
             o.start.time_end, o.start.time_end / max (first, 1));
    end
  end
  if isempty (o.until) == isempty (o.steps), error ('qn:input', '%s: give "until" or "steps", one of them', who); end
  if isempty (o.steps)
    o.steps = round (qn.impl.scalar (who, 'until', o.until) / o.step) - first;
    if o.steps < 1
      error ('qn:input', '%s: "until" must be at least a step after the start at %g s, got %g', who, first * o.step, o.until);
    end
    o.until = [];
  end
  o.steps = qn.impl.count (who, 'steps', o.steps, 2 ^ 31);
  sim = struct ('model', model, 'scheme', qn.scheme (o.scheme), 'step', o.step, 'first', first, 'time', (first + (0:o.steps)) * o.step);
  sim.speed = [];
  if ~isempty (o.speed), [sim.speed, sim.model] = qn.impl.run_up (who, model, o.speed, sim.time, sim.step); end
  sim.varying = qn.impl.varied (who, model, o.varying, sim.time, sim.step);
  if ~isempty (o.times) && o.every ~= 1, error ('qn:input', '%s: give "every" or "times", one of them', who); end
  if isempty (o.times)
    o.every = qn.impl.count (who, 'every', o.every);
    sim.saved = 1:o.every:o.steps + 1;
  else
    o.times = qn.impl.numbers (who, 'times', o.times, [], 'list');
    sim.saved = unique (min (max (round (o.times(:).' / o.step) - first, 0), o.steps)) + 1;
  end
  [loads, sim.base] = qn.impl.base_loads (model, o.load, o.base);
  [sim.shapes, sim.loads, sim.notes] = qn.impl.loads (model, loads, sim.time, sim.base);
  [sim.elements, sim.states, sim.slots] = qn.impl.elements (model, o.elements);
  sim.start = qn.impl.initial (sim, o);
  % What it was made of, for runs with another step.
  o.start = [];
  sim.options = o;
  if first == 0, return, end
  % A run that goes on is not made of that; what can only be found of it is kept.
  sim.told = qn.impl.check_unbalance (sim);
  sim.options = [];
end
