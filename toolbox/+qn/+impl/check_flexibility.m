% FOUND = CHECK_FLEXIBILITY (SIM)  what the modes leave out of the structure's static flexibility at each element that is stiff against it
%
% The loop of a structure with flexibility a and an element of stiffness k gives by a + 1/k; what is missing of a, in parts of that, is
% how much too stiff the loop is. Needs the matrices of the structure (fields K, M of the model) and its degrees of freedom, which
% are found again from the rows of the element; where that fails nothing is said.
function found = check_flexibility (sim)
  found = qn.impl.finding ();
  model = sim.model;
  if ~isfield (model, 'K') || isempty (sim.elements) || numel (model.w) >= size (model.shapes, 1), return, end
  rows = zeros (0, numel (model.w));
  owner = zeros (1, 0);
  stiff = zeros (1, 0);
  for k = 1:numel (sim.elements)
    e = sim.elements(k);
    most = qn.impl.stiffest (e.law, []);
    if most == 0 || ~isequal (e.observe, e.command), continue, end
    rows = [rows; e.observe];
    owner = [owner, k * ones(1, size (e.observe, 1))];
    stiff = [stiff, most * ones(1, size (e.observe, 1))];
  end
  if isempty (rows), return, end
  [places, good] = qn.impl.places (model.shapes, rows);
  if ~any (good), return, end
  places = places(:, good);
  [x, off] = qn.impl.static_response (model.K, model.M, model.shapes, model.w, full (places));
  if ~(off <= 1e-6), return, end
  rows = rows(good, :);
  owner = owner(good);
  stiff = stiff(good);
  elastic = model.w > 1e-6 * max (model.w);
  whole = full (sum (places .* x, 1));
  held = (rows(:, elastic) .^ 2 * (1 ./ model.w(elastic) .^ 2)).';
  share = (whole - held) ./ (whole + 1 ./ stiff);
  for j = find (share > 0.05)
    e = sim.elements(owner(j));
    who = e.law.note;
    if isempty (who), who = e.law.kind; end
    found(end + 1) = qn.impl.finding ('flexibility', 'warning', ...
      ['element %d (%s): the %d modes hold %.1f %% of the static flexibility at its ' ...
      'place (%.3g of %.3g m/N), and with up to %.3g N/m it is stiff against that: the loop is %.0f %% too stiff, peak forces are ' ...
      'wrong ' ...
      'by as much and more. Attach its place: qn.modal (..., ''attach'', DOFS), or keep more modes'], e.item, who, numel (model.w), ...
      100 * held(j) / whole(j), held(j), whole(j), stiff(j), 100 * share(j));
  end
end
