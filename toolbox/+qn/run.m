% QN.RUN  runs a simulation
%
% Purpose
%   Integrates in pieces, each one call of the module. Between two pieces it says how far it is, saves its state and can be
%   stopped. However a run is cut, its results have the same bits.
%
% Calls
%   RES = qn.run (SIM, ...)
%
% Input
%   SIM   from qn.simulation
%   Names and values
%     'progress'  true: say every second how much is done and how long it will take (true)
%     'piece'     steps in one piece; [] makes pieces of about half a second ([])
%     'save'      name of a .mat file for the state and the results so far ('': none). It is replaced as a whole, after what was
%                 written has been read again: an interruption or a full disk leaves the last good one, and the warning qn:save
%                 says so while the run goes on. qn.resume reads it.
%     'interval'  seconds between two of those (30); it is also written at the end. Each writes all results so far, about a second
%                 for 100 MB: choose a longer one for large results.
%     'check'     true: what qn.check finds of errors and warnings is said before the run, and after it for elements that turn out too
%                 stiff in the motion that occurred, each code once, as warnings qn:check:CODE (true). warning ('off',
%                 'qn:check:CODE') switches off one of them; docs/checks.md lists them. It has no meaning in qn.resume.
%     'stop'      function of the results so far, called between pieces: true ends the run ([]). Columns after r.time_end are
%                 there already and are NaN.
%
% Output
%   RES   struct: time      1 x k times of the results, up to where the run came [s]
%                 q         m x k modal coordinates [m sqrt(kg)]; displacements are rows of qn.observe times q
%                 force     p x k forces of the elements [N], as they acted in that step: evaluated at the predictor
%                 state     memory of friction laws, one row each, k columns [N or m]
%                 final     last state, for qn.resume and 'start' of qn.simulation
%                 time_end  its time [s]
%                 complete  true when the run reached its end
%                 diverged  true when it ended before, because the motion grew beyond all numbers
%                 seconds   what the run took [s]
%                 units     struct of texts
%                 sim       the set-up
%
% Errors
%   Those of the module. A run whose motion grows beyond all numbers (1e150) ends at its last good time, with the warning
%   qn:diverged; 'start' and qn.resume refuse its result. The warning qn:growth says between two pieces that the motion has more than
%   nine times the energy that it can have: that of the state it began with, what elements can give back, and what the loads can have
%   put in at most, (integral of their norm)^2 / 2 added to the root. That holds for every passive set-up, at resonance too; nothing is
%   said where forces may rightly feed the motion (unsymmetric stiffness, negative damping, elements that act elsewhere than they
%   observe, laws whose energy has no bound). warning ('off', 'qn:growth') switches it off. The handles of the run
%   are freed in every case; by the module's rule the values of its nonlinear elements, a few kilobytes, stay in memory until the
%   host ends. Ctrl-C, or an error in the function of 'stop', ends a run at once: its state is saved where 'save' is given, else
%   qn.interrupted gives what it reached; a line says which.
%   qn:input  the file of 'save' cannot be written (asked before the run), or an option has a value that makes no sense
%
% Example
%   model = qn.modal (4e4, 1, 'damping', 0.02);
%   sim = qn.simulation (model, 'step', 1e-3, 'steps', 1000, 'load', {qn.load_at(model, 1), @(t) 100 * sin(30 * t)});
%   res = qn.run (sim);
%   u = qn.displacement (res, qn.observe (model, 1));
%
% See also qn.simulation, qn.resume, qn.check, qn.displacement, qn.plot.series
function res = run (sim, varargin)
  if nargin < 1, sim = []; end
  qn.impl.expect_result_of ('qn.run', sim, 'qn.simulation');
  m = numel (sim.model.w);
  k = sum (sim.saved == 1);
  res = struct ('time', sim.time(sim.saved(1:k)), 'q', zeros (m, k), 'force', zeros (numel ([sim.elements.forces]), k), ...
                'state', zeros (sim.states, k), 'final', sim.start, 'time_end', sim.time(1), 'complete', false, 'diverged', false, ...
                'seconds', 0, 'units', qn.impl.units (), 'sim', sim);
  if any (sim.saved == 1)
    res.q(:, 1) = sim.start.u(1:m);
    res.state(:, 1) = sim.start.u(m + 1:end);
    res.force(:, 1) = sim.start.FNL(qn.impl.force_slots (sim));
  end
  o = qn.impl.run_options ('qn.run', varargin);
  before = qn.impl.finding ();
  if o.check
    before = qn.impl.findings (sim, []);
    qn.impl.warn_of (before);
  end
  res = qn.impl.advance (res, o);
  if o.check, qn.impl.warn_of (qn.impl.check_motion (res, before)); end
end
