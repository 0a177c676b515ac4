% F = FINDING (CODE, LEVEL, FORMAT, ...)  one finding of qn.check; FINDING () is an empty list, FINDING ('codes') every code
%
% A code that is not in the list here is an error, so that docs/checks.md, which is compared with it, names them all.
function f = finding (code, level, varargin)
  known = {'times', 'saved', 'loads', 'load_values', 'model', 'stiffness', 'damping', 'initial', 'rows', 'row_values', 'table_order', ...
           'step_unstable', 'step_coarse', 'growth', 'model_grows', 'run_short', 'at_rest', 'initial_lost', 'load_zero', 'load_shape', ...
           'load_ends', 'load_coarse', 'record_unused', 'record_short', 'record_skipped', 'damping_high', 'frequencies', 'element_zero', ...
           'element_unstable', 'element_coarse', 'elements_together', 'flexibility', 'gap_far', 'never_closes', 'never_acts', ...
           'motion_large', 'preload', 'maxwell_unstable', 'maxwell_coarse', 'power_negative', 'stickslip_coarse', 'stickslip_slips', ...
           'clima2_stiffness', 'clima2_normal', 'table_left', 'table_alternates', 'damper_unstable', 'damper_coarse', ...
           'damper_feeds', 'film_left', 'film_long', 'law_speed', 'mode_rounded', 'base_units', 'base_push', 'speed'};
  f = struct ('code', {}, 'level', {}, 'text', {});
  if nargin == 0, return, end
  if nargin == 1
    f = known;
    return
  end
  if ~any (strcmp (code, known)), error ('qn:internal', 'qn.check: no finding is called "%s"', code); end
  f = struct ('code', code, 'level', level, 'text', sprintf (varargin{:}));
end
