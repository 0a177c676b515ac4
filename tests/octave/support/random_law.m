% LAW = RANDOM_LAW (WORD, N)  random sizes, parameters and places of the force law WORD for an element on N rows of u
%
% Fields
%   parameters  "opt" from its second entry on, after the law code
%   page, pages extents of "unl" and "vnl"
%   places      "iopt" from its second entry on; the state block fits into N rows
%   forces      fewest values of a "snl"; 0 where the law may write its forces over the observations
%   rates       true where the law needs "vnl"
%   fields      names and values of further fields of the element
function law = random_law (word, n)
  law = struct ('word', word, 'page', randi (7), 'pages', randi (3), 'places', zeros (1, 4), 'forces', 0, 'rates', false, 'fields', {{}});
  law = feval (['random_' lower(word)], law, n);
end

function law = random_power (law, n)
  exponents = [0 1 2 3 -1 3*rand];
  law.parameters = [randn; exponents(randi (6))];
end

function law = random_expon (law, n)
  law.parameters = [randn; 3 * rand];
end

function law = random_table (law, n)
  knots = randi (6);
  law.parameters = [0; random_knots(knots); randn(knots, 1); randi([-1, knots + 2]); 0; 0];
  law.places = [0 0 0 0, 2, 2 + 2 * knots, knots, 1];
end

function law = random_maxw (law, n)
  law.rates = true;
  q = randi ([0, 4]);
  m = randi ([0, min(3, n)]);
  elements = randi ([0, 3]);
  law.page = max (q * elements + randi ([0, 2]), 1);
  % The committed values of the last element must lie inside the array.
  last = 2 * law.page + max (elements - 1, 0) * q + max (q, m) + 1;
  law.pages = max (3, ceil (last / law.page)) + (rand < 0.2);
  weights = 0.5 * randn (2 * (q + m) * q + q * m + m * m + q + q + 2, 1);
  law.parameters = [0; increment(0.02); randi([0, 3]) + rand / 2; 0; weights];
  law.places = [randi([0, 1]), q, m, elements];
  if law.places(1) + m > n + 1, law.places(1) = 0; end
end

function law = random_dahlc (law, n)
  law.rates = true;
  law.pages = 1 + randi (2);
  exponents = [0 1 2 2*rand];
  law.parameters = [0; increment(0.1); 50 * rand; exponents(randi (4)); 0.5 + rand; 2 * rand];
  law.places = random_store (n);
end

function law = random_sts (law, n)
  law.rates = true;
  if law.pages == 1, law.page = 2 * ceil (law.page / 2); end
  law.parameters = [0; increment(0.1); 5 * rand; 5 * rand; 6 * rand; 3 * rand * (rand < 0.7)];
  law.places = random_store (n);
end

function law = random_clima2 (law, n)
  law.rates = true;
  law.page = randi (11);
  law.pages = max (2, ceil (5 * ceil (law.page / 5) / law.page));
  knots = randi (6);
  columns = randi (3);
  table = [random_knots(knots); randn(knots * columns, 1) + 1];
  law.parameters = [0; increment(0.1); rand; 2 * rand; rand; randn; table; randi([-1, knots + 2]); 0; 0];
  law.places = [random_store(n), 7, 7 + numel(table), knots, columns];
  if law.page < 3, law.forces = 3; end
end

function law = random_radial (law, n)
  law.rates = true;
  law.page = 2 * randi ([0, 3]);
  exponents = [0 1 1.5 2 3*rand];
  law.parameters = [rand*(rand<0.8); 5*rand; exponents(randi (5)); rand*(rand<0.7); rand*(rand<0.7); 0.5*rand*(rand<0.7); rand; randn; ...
                    0.3*randn(2, 1)*(rand<0.5)];
end

function law = random_journal (law, n)
  law.rates = true;
  law.page = 2 * randi ([0, 3]);
  law.parameters = [rand(3, 1); 0.5 + 2*rand; 3*randn*(rand<0.8); 0.1+0.85*rand; 0.3*randn(2, 1)*(rand<0.5); rand*(rand<0.5)];
end

% Rows in groups, or with states: springs that are coupled, a damper, a push in time, and states that follow the displacements.
function law = random_user (law, n)
  law.rates = true;
  law.pages = 1;
  law.forces = 1;
  states = randi ([0, min(2, n)]);
  group = randi (3);
  rows = group * randi (2 - (states > 0));
  law.page = rows + states;
  law.parameters = [0; increment(0.1)];
  law.places = [randi([1, n - states + 1]), group, states, 1];
  if states == 0, law.places = [0, group, 0, 0]; end
  k = randn (group);
  w = rand;
  if states > 0
    follow = rand (states, group);
    law.fields = {'call', @(x, v, s, t) deal(k * x + sum (s) + 0.1 * v + w * t, 0.5 * s + follow * x)};
  else
    law.fields = {'call', @(x, v, s, t) k * x + 0.1 * v + w * t};
  end
end

% Some of them doubled: jumps in the table.
function x = random_knots (n)
  x = sort (round (4 * randn (n, 1)) / 2);
end

function law = random_damper (law, n)
  law.rates = true;
  exponents = [0 1 2 -1 3*rand];
  law.parameters = [randn; exponents(randi (5))];
end

function law = random_contact (law, n)
  law.rates = true;
  exponents = [1 1.5 2 3*rand];
  law.parameters = [randn; exponents(randi (4)); 2 * rand - 0.3; 0.5 * randn; randn];
end

% Now and then a value of the grid itself is met, as knots and motions are rounded.
function law = random_surface (law, n)
  law.rates = true;
  counts = 1 + randi (5, 1, 2);
  knots = @(n) cumsum ([-ceil(n / 2); 0.25 * randi(6, n - 1, 1)]) / 2;
  law.parameters = [rand(2, 1) .* (rand (2, 1) < 0.5); knots(counts(1)); knots(counts(2)); randn(prod (counts), 1)];
  law.places = [0 0 0 0, counts];
end

% Now and then without a limit, and with a state beyond it.
function law = random_boucwen (law, n)
  law.pages = max (law.pages, ceil (3 * ceil (law.page / 3) / law.page));
  exponents = [1 2 3 0.5+2*rand];
  law.parameters = [0; rand; 5 * randn; rand; 0.5 + rand; 2 * rand; 2 * randn; exponents(randi (4))];
  law.places = random_store (n);
end

% The time increment of a law, sometimes left to the first step time.
function h = increment (most)
  h = most * rand * (rand < 0.7);
end

% [place in u, skip, length, blocks] of the state store; the place and the block fit into n rows.
function p = random_store (n)
  p = [randi([-1, n]), randi([0, 3]), 0, randi([0, 3])];
  if p(1) > 0, p(3) = randi ([0, n + 1 - p(1)]); end
end
