% FOUND = CHECK_MODES (SIM)  modes of 0 Hz that may be those of a soft support
%
% A rigid motion strains K by the rounding of its entries, about 1e-16 of their sum without signs; up to 1e-13 qn.modal takes it for one.
function found = check_modes (sim)
  found = qn.impl.finding ();
  model = sim.model;
  if ~isfield (model, 'K'), return, end
  still = find (model.w(:) == 0);
  if isempty (still), return, end
  [strain, terms] = qn.impl.strain_of (model.K, model.shapes(:, still));
  for k = find (strain > 1e-14 * terms).'
    found(end + 1) = qn.impl.finding ('mode_rounded', 'note', ...
      ['mode %d is taken for a rigid motion, 0 Hz: it strains K by %.2g 1/s^2 (%.2g Hz), %.1g of what the entries of K add up to, near ' ...
       'their rounding. If a soft support is meant, make it an element (qn.law ''power'') or give it in the option "K" of qn.modal'], ...
      still(k), strain(k), sqrt (strain(k)) / (2 * pi), strain(k) / terms(k));
  end
end
