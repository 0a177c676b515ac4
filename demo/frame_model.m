% F = FRAME_MODEL ()  finite-element model of a four-storey, two-bay steel frame, clamped at its three column bases
%
% Output  F  struct: k, m  stiffness and mass, sparse, free degrees of freedom only [N/m, kg and their rotational kin]
%                    push  1 for a horizontal displacement, 0 else: the rigid motion of a base that moves sideways
%                    roof  index of the horizontal displacement of the roof, right-hand column (where the stop is)
%                    floor index of the horizontal displacement of the second floor, left-hand column (where the brace is)
%                    mass  mass of the whole frame [kg]
%                    n_element, n_node  what the model is made of
%
% Columns HEB 240, beams IPE 300 that carry a floor of 1,500 kg/m; S235 steel; bays of 5 m, storeys of 3.2 m.
function f = frame_model ()
  steel = struct ('e', 210e9, 'rho', 7850);
  column = make_section (steel, 106.0e-4, 11260e-8, 0);
  beam = make_section (steel, 53.8e-4, 8356e-8, 1500);
  bays = 2;
  storeys = 4;
  per_column = 6;
  per_beam = 8;

  % Nodes: the column lines from the base up, then the inner nodes of every beam.
  grid = zeros (bays + 1, storeys * per_column + 1);
  xy = zeros (0, 2);
  ends = zeros (0, 2);
  is_beam = false (0, 1);
  for b = 1:bays + 1
    for n = 1:storeys * per_column + 1
      xy(end + 1, :) = [(b - 1) * 5.0, (n - 1) * 3.2 / per_column];
      grid(b, n) = rows_of (xy);
      if n > 1
        ends(end + 1, :) = [grid(b, n - 1), grid(b, n)];
        is_beam(end + 1, 1) = false;
      end
    end
  end
  for s = 1:storeys
    for b = 1:bays
      left = grid(b, s * per_column + 1);
      right = grid(b + 1, s * per_column + 1);
      last = left;
      for n = 1:per_beam
        if n < per_beam
          xy(end + 1, :) = xy(left, :) + (xy(right, :) - xy(left, :)) * n / per_beam;
          next = rows_of (xy);
        else
          next = right;
        end
        ends(end + 1, :) = [last, next];
        is_beam(end + 1, 1) = true;
        last = next;
      end
    end
  end

  % Assembly: every element gives 36 triplets, sparse adds those that meet.
  n_node = rows_of (xy);
  n_element = rows_of (ends);
  line = zeros (36, n_element);
  col = zeros (36, n_element);
  kval = zeros (36, n_element);
  mval = zeros (36, n_element);
  mass = 0;
  for e = 1:n_element
    section = column;
    if is_beam(e), section = beam; end
    [ke, me] = beam_element (xy(ends(e, :), :), section);
    dof = [3 * ends(e, 1) + (-2:0), 3 * ends(e, 2) + (-2:0)];
    [j, i] = meshgrid (dof, dof);
    line(:, e) = i(:);
    col(:, e) = j(:);
    kval(:, e) = ke(:);
    mval(:, e) = me(:);
    mass = mass + section.m * norm (xy(ends(e, 2), :) - xy(ends(e, 1), :));
  end
  k = sparse (line(:), col(:), kval(:), 3 * n_node, 3 * n_node);
  m = sparse (line(:), col(:), mval(:), 3 * n_node, 3 * n_node);

  % The bases are clamped; what is left keeps the order of the nodes.
  clamped = [3 * grid(:, 1) - 2; 3 * grid(:, 1) - 1; 3 * grid(:, 1)];
  free = setdiff (1:3 * n_node, clamped);
  push = zeros (3 * n_node, 1);
  push(1:3:end) = 1;
  at = @(node) find (free == 3 * node - 2);
  f = struct ('k', k(free, free), 'm', m(free, free), 'push', push(free), 'roof', at (grid(end, end)), ...
              'floor', at (grid(1, 2 * per_column + 1)), 'mass', mass, 'n_element', n_element, 'n_node', n_node);
end

function s = make_section (steel, area, inertia, carried)
  s = struct ('e', steel.e, 'a', area, 'i', inertia, 'm', steel.rho * area + carried);
end

function n = rows_of (x)
  n = size (x, 1);
end
