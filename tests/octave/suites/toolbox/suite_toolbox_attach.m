% Attachment vectors of qn.modal: published values, exact flexibility, orthogonality, free structures, mistakes.
function tests = suite_toolbox_attach ()
  use_toolbox ();
  tests = localfunctions ();
end

% Clamped-free bar with E A = L = rho A = 1 in the functions x and integrated Legendre polynomials, of which only the first is not
% zero at the tip: its degree of freedom is the displacement of the tip, and the low modes are exact to rounding.
function [k, m] = bar (n)
  j = 1:n + 9;
  b = j ./ sqrt (4 * j .^ 2 - 1);
  [v, d] = eig (diag (b, 1) + diag (b, -1));
  z = diag (d);
  weight = v(1, :).' .^ 2;
  p = [ones(size (z)), z];
  for j = 2:n, p(:, j + 1) = ((2 * j - 1) * z .* p(:, j) - (j - 1) * p(:, j - 1)) / j; end
  shape = (z + 1) / 2;
  slope = ones (size (z));
  for j = 2:n
    shape(:, j) = (p(:, j + 1) - p(:, j - 1)) / (2 * (2 * j - 1));
    slope(:, j) = p(:, j);
  end
  k = slope.' * bsxfun (@times, weight, slope);
  m = shape.' * bsxfun (@times, weight, shape);
  k = (k + k.') / 2;
  m = (m + m.') / 2;
end

% First root of x cos x + 10 sin x = 0 is 2.86277259; what N modes make of it, alone and with the residual flexibility and mass of the tip.
function test_bar_with_a_spring_at_its_tip_has_the_published_roots ()
  [k, m] = bar (30);
  modes = [1 2 5 10];
  alone = [4.73997902 3.16770192 2.96789384 2.91344923];
  kept = [.81056947 .90063274 .95960479 .97975259];
  rubin = [2.88812020 2.86360783 2.86278197 NaN];
  exact = fzero (@(x) x * cos (x) + 10 * sin (x), [2 3]);
  c = published ('Clamped bar with a spring at its tip, residual flexibility and mass', ...
                 'method of S. Rubin, AIAA Journal 13, 1975, in closed form for this bar', {'attachment vectors', 'modes'});
  expect_equal (exact, 2.86277259, 5e-9);
  for j = 1:numel (modes)
    [root, share] = first_root (qn.modal (k, m, 'modes', modes(j)));
    expect_equal ([root, share], [alone(j), kept(j)], 1e-8);
    [root, share] = first_root (qn.modal (k, m, 'modes', modes(j), 'attach', 1));
    expect_equal (share, 1, 1e-10);
    if ~isnan (rubin(j)), expect_published (c, sprintf ('first root with %d modes', modes(j)), rubin(j), root, 3e-8); end
    if root < exact || root > exact + 0.026, error ('%d modes: %.9g', modes(j), root); end
  end
end

function [root, share] = first_root (model)
  c = qn.observe (model, 1);
  root = sqrt (min (eig (diag (model.stiffness) + 10 * c.' * c)));
  share = c * (c.' ./ model.stiffness);
end

% The same in time: a bar let go with the tip on its spring swings with that frequency.
function test_the_module_runs_with_attached_shapes ()
  [k, m] = bar (20);
  model = qn.modal (k, m, 'modes', 2, 'attach', 1);
  c = qn.observe (model, 1);
  [v, d] = eig (diag (model.stiffness) + 10 * c.' * c);
  [lowest, at] = min (diag (d));
  spring = qn.law ('power', 'stiffness', 10, 'exponent', 1);
  sim = qn.simulation (model, 'step', 1e-3, 'until', 6, 'q0', v(:, at), 'elements', {spring, c});
  res = qn.run (sim, 'progress', false);
  expect_equal (res.q, v(:, at) * cos (sqrt (lowest) * res.time), 1e-4);
end

function [k, m] = random_structure (n, held)
  a = randn (n, n + 2);
  k = a * a.';
  if ~held
    r = orth ([ones(n, 1), (1:n).']);
    k = k - r * (r.' * k);
    k = k - (k * r) * r.';
    k = (k + k.') / 2;
  end
  b = randn (n, n + 4);
  m = b * b.' / n;
end

% Diagonal in mass and stiffness, and exact statics at every place that was asked for; in sparse matrices the same.
function test_random_structures_stay_diagonal_and_have_exact_flexibility ()
  rand ('state', 4);
  randn ('state', 4);
  for round = 1:30
    n = 6 + floor (10 * rand ());
    [k, m] = random_structure (n, true);
    places = randperm (n, 1 + mod (round, 3));
    if mod (round, 2), k = sparse (k); m = sparse (m); end
    model = qn.modal (k, m, 'modes', 2, 'attach', places);
    expect_equal (model.attached, numel (places));
    expect_equal (model.shapes.' * m * model.shapes, eye (2 + numel (places)), 1e-9);
    expect_equal (model.shapes.' * k * model.shapes ./ max (model.stiffness), diag (model.stiffness) / max (model.stiffness), 1e-9);
    exact = inv (full (k));
    c = qn.observe (model, places);
    expect_equal (c * bsxfun (@rdivide, c.', model.stiffness) ./ max (exact(:)), exact(places, places) / max (exact(:)), 1e-8);
    if any (diff (model.w) < -1e-9 * model.w(end)), error ('the frequencies do not ascend'); end
  end
end

% Numbers, columns and rows name the same places; what is named twice or is in the modes adds nothing.
function test_places_may_be_numbers_columns_or_rows ()
  randn ('state', 5);
  [k, m] = random_structure (8, true);
  a = qn.modal (k, m, 'modes', 3, 'attach', [2 5]);
  unit = eye (8);
  expect_equal (getfield (qn.modal (k, m, 'modes', 3, 'attach', unit(:, [2 5])), 'shapes'), a.shapes, 1e-9);
  expect_equal (getfield (qn.modal (k, m, 'modes', 3, 'attach', sparse (unit([2 5], :))), 'shapes'), a.shapes, 1e-9);
  expect_equal (getfield (qn.modal (k, m, 'modes', 3, 'attach', [unit(:, [2 5]), unit(:, 5)]), 'attached'), 2);
  all_modes = qn.modal (k, m, 'attach', 1:8);
  expect_equal ([all_modes.attached, numel(all_modes.w)], [0 8]);
  shape = qn.modal (k, m, 'modes', 3, 'attach', m * a.shapes(:, 1));
  expect_equal (shape.attached, 0);
end

% Two rigid motions: the response to forces less the inertia forces that they raise, checked against the pseudo-inverse.
function test_free_structures_are_relieved_of_their_inertia ()
  randn ('state', 6);
  for method = {'eig', 'eigs'}
    [k, m] = random_structure (9, false);
    if strcmp (method{1}, 'eigs'), k = sparse (k); m = sparse (m); end
    model = qn.modal (k, m, 'modes', 3, 'attach', 4, 'method', method{1});
    expect_equal (model.attached, 1);
    expect_equal (model.shapes.' * m * model.shapes, eye (4), 1e-7);
    [phi, d] = eig (full (m) \ full (k));
    [d, order] = sort (real (diag (d)));
    phi = real (phi(:, order));
    phi = bsxfun (@rdivide, phi, sqrt (sum (phi .* (m * phi), 1)));
    exact = phi(4, 3:end) .^ 2 * (1 ./ d(3:end));
    c = qn.observe (model, 4);
    expect_equal (c(3:4) .^ 2 * (1 ./ model.stiffness(3:4)), exact, 1e-6 * exact);
    try
      qn.modal (k, m, 'modes', 1, 'attach', 4, 'method', method{1});
      error ('one mode of two rigid motions was taken');
    catch err
      % Of two motions of 0 Hz eigs may find the one that rounding puts above the other, which is said then.
      tied = strcmp (err.identifier, 'qn:eigs') && ~isempty (strfind (err.message, 'there is one more at or below'));
      if ~tied
        expect_equal (err.identifier, 'qn:input');
        expect_in (err.message, 'all of its rigid motions among the modes');
      end
    end
  end
end

function test_dampings_reach_the_attached_shapes ()
  randn ('state', 7);
  [k, m] = random_structure (6, true);
  model = qn.modal (k, m, 'modes', 2, 'attach', [1 3], 'damping', [0.01 0.02]);
  expect_equal (model.damping, 2 * [0.01; 0.02; 0.02; 0.02] .* model.w, 1e-12 * model.w(end));
  model = qn.modal (k, m, 'modes', 2, 'attach', [1 3], 'C', 0.1 * k);
  expect_equal (model.damping, 0.1 * model.stiffness, 1e-8 * model.stiffness(end));
end

function test_places_that_are_none_are_refused ()
  k = diag ([1 2 3]);
  m = eye (3);
  expect_error (@() qn.modal (k, m, 'attach', 4), 'qn:input', '~degrees of freedom from 1 to 3, or load shapes of 3 values, got 4');
  expect_error (@() qn.modal (k, m, 'attach', 1.5), 'qn:input', '~degrees of freedom from 1 to 3');
  expect_error (@() qn.modal (k, m, 'attach', [0; 0; 0]), 'qn:input', '~is zero');
  expect_error (@() qn.modal (k, m, 'attach', [1; NaN; 0]), 'qn:input', '~"attach"\(2\) is NaN');
  expect_error (@() qn.modal (k, m, 'attach', 'tip'), 'qn:input', '~of class char');
end
