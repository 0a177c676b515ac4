% NOT_DIVERGED (WHO, RES)  refuses the result of a run that diverged: it has no state to go on from
function not_diverged (who, res)
  bad = isfield (res, 'diverged') && res.diverged;
  if ~bad && all (isfinite (res.final.u)) && all (isfinite (res.final.v)) && all (isfinite (res.final.a)), return, end
  error ('qn:input', ['%s: this run diverged, its last good time is %g s; there is no state to go on from. qn.check names what the ' ...
                      'step is too long for, qn.advise finds a better one'], who, res.time_end);
end
