% FOUND = CHECK_PHASE (RES, X)  the error of the step in the motion that occurred, elements taken as the springs and dampers they were on average
%
% Where such a model moves as the result does, to a half; contacts that open and close make it another one. X are the displacements of
% the elements, one row after another, where they are known.
function found = check_phase (res, x)
  found = qn.impl.finding ();
  sim = res.sim;
  if isempty (sim.elements) || numel (sim.model.w) > 60 || ~res.complete, return, end
  if nargin < 2 || size (x, 2) ~= size (res.q, 2), x = cat (1, sim.elements.observe) * res.q; end
  [k, c] = qn.impl.equivalent (res, x);
  if ~all (isfinite ([k(:); c(:)])) || ~any ([k(:); c(:)]), return, end
  [off, worst, unlike] = qn.impl.linear_error (sim, k, c, res);
  if off > 0.04 && unlike < 0.5
    found = qn.impl.phase_finding (sim, off, worst, 'the motion', ...
                                   ', with the elements as the springs and dampers that they were on average');
  end
end
