% QN.LAW  force law of a nonlinear element, by named parameters
%
% Purpose
%   Describes how the force of an element follows from the displacement x that it observes. The force acts on the structure like
%   that of a spring: a positive force pushes back when x is positive.
%
% Calls
%   LAW = qn.law (KIND, NAME, VALUE, ...)
%
% Input
%   KIND and its parameters (names marked with * have a default)
%   'power'        stiffness [N/m^p], exponent p             force = stiffness * x^p. With an exponent that is not a whole number, x
%                                                            must not be negative
%   'exponential'  scale [N], base                           force = scale * base^x, x in m
%   'table'        displacement [m], force [N]               linear between the knots, which ascend; beyond them the end segments continue
%   'damper'       damping [N (s/m)^a], exponent* a (1)      force = damping * |v|^a with the sign of the velocity v
%   'contact'      stiffness [N/m^p], exponent* p (1.5),     one-sided stop: stiffness * d^p (1 + damping * d') and never below 0, where
%                  damping* [s/m] (0), gap* [m] (0),         side * x is beyond the gap by d > 0; side is 1 or -1 (Hunt and Crossley
%                  side* (1)                                 1975). See qn.contact.
%   'surface'      displacement [m], velocity [m/s],         bilinear between the knots of a grid, both ascending; a row of forces for
%                  force [N]                                 each displacement, a column for each velocity (restoring force surface,
%                                                            Masri and Caughey 1979). Beyond the grid its outer cells continue
%   'maxwell'      springs [N/m], dampers [N s/m],           spring-and-damper branches in parallel, and a spring beside them; the
%                  stiffness* [N/m] (0)                      states advance by the explicit Euler rule
%   'dahl'         stiffness [N/m], slip [N], exponent* (1)  dF/dx = stiffness * (1 - F/slip * sign (v))^exponent. Exponent 0: an elastic
%                                                            spring that slides at the slip force (Jenkins element)
%   'stickslip'    contact [N/m], slip [N],                  the module's stick-slip law: the slider moves when the spring force
%                  stiffness* [N/m] (0), ground* [N/m] (0)   truncated to whole newtons reaches the slip force, and the spring force
%                                                            then changes its sign. For Coulomb friction use 'dahl' or qn.slider.
%   'boucwen'      stiffness [N/m], ratio, beta [1/m^n],     stiffness * (ratio * x + (1 - ratio) * z), z' = A v - beta |v| |z|^(n-1) z
%                  gamma [1/m^n], exponent* n (1), A* (1)    - gamma v |z|^n (Bouc 1967, Wen 1976). See qn.boucwen.
%   'clima2'       displacement [m], normal [N],             two Dahl branches whose slip force is friction * normal(x3) and whose
%                  growth [N/m], friction, exponent* (1),    stiffness is growth(x3), tables of a third displacement x3, and the
%                  stiffness* [N/m] (0), offset* [N] (0)     force normal(x3) - offset along it. Observes three displacements.
%   'radial'       gap [m], stiffness [N/m^p],               a round shaft in a round clearance around x0, y0: force
%                  exponent* p (1), damping* [s/m] (0),      stiffness * d^p * (1 + damping * d') along the radius, d the depth beyond
%                  friction* (0), onset* [m/s] (0.01),       the gap, and friction times that against sliding, with the surface speed
%                  radius* [m] (0), speed* [rad/s] (0),      radius * speed of the shaft. Observes two displacements, x and y, and
%                  x0*, y0* [m] (0)                          their velocities. See qn.radial.
%   'journal'      viscosity [Pa s], length [m], radius [m], oil film of a short plain bearing around x0, y0 (Ocvirk), of a journal that
%                  clearance [m], speed [rad/s],             turns at speed; up to the eccentricity limit, in parts of the clearance.
%                  limit* (0.99), x0*, y0* [m] (0)           Observes two displacements and their velocities. See qn.journal.
%   'compiled'     FILE, parameters* ([]), states* (0),      a law of your own in C, in FILE.c (name of the parameter: file); compiled
%                  rows* (1), hash* ('')                     once. The help of states and rows is that of 'function'; hash is that of
%                                                            the content, found by qn.law. See docs/user_laws.md
%   'function'     CALL, states* (0), rows* (1)              a law of your own as a function handle (name of the parameter: call),
%                                                            slower: f = call (x, v, s, t), or [f, s] = call (x, v, s, t) with states.
%                                                            It observes that many rows and keeps that many states, up to 2000
%                                                            of each; columns
%
% Output
%   LAW   struct: kind, parameters (struct of the values), note (text)
%
% Errors
%   qn:input  unknown kind or name, a parameter is missing, not finite and real or out of its range, a table does not ascend
%
% Example
%   brace = qn.law ('power', 'stiffness', 5e9, 'exponent', 3);
%   qn.describe (brace)
%
% See also qn.describe, qn.element, qn.force, qn.gap, qn.journal, qn.radial, qn.slider, qn.zener
function law = law (kind, varargin)
  if nargin > 0, kind = qn.impl.chars (kind); end
  if nargin < 1 || ~ischar (kind), error ('qn:input', 'qn.law: the kind of law expected, such as ''table''; see help qn.law'); end
  who = sprintf ('qn.law, ''%s''', kind);
  l = qn.impl.law_of (kind);
  names = l.parameters(:, 1);
  lists = ~cellfun (@isempty, strfind (l.parameters(:, 3), 'list'));
  % The file or function of a law of the user's may stand in front, without its name.
  if mod (numel (varargin), 2) == 1 && any (strcmp (l.parameters{1, 3}, {'file', 'function'})), varargin = [names(1), varargin]; end
  p = qn.impl.options (who, cell2struct (l.parameters(:, 2), names, 1), varargin);
  for k = 1:numel (names), p.(names{k}) = checked (who, names{k}, p.(names{k}), l.parameters{k, 3}); end
  if ~isempty (l.prepare), p = l.prepare (who, p); end
  same_length (who, p, sort (names(lists)));
  for name = of_sort (l, 'ascending')
    x = p.(name{1});
    k = find (diff (x) < 0, 1);
    if ~isempty (k)
      error ('qn:input', '%s: "%s" must ascend, but value %d is %g and value %d is %g; sort the table by it', who, name{1}, k, x(k), ...
             k + 1, x(k + 1));
    end
    finite_distances (who, name{1}, x);
  end
  for name = of_sort (l, 'sign')
    if ~any (p.(name{1}) == [1 -1]), error ('qn:input', '%s: "%s" must be 1 or -1, got %g', who, name{1}, p.(name{1})); end
  end
  for name = of_sort (l, 'positive')
    qn.impl.numbers (who, name{1}, p.(name{1}), [], 'above', 0);
  end
  for name = of_sort (l, 'not negative')
    qn.impl.numbers (who, name{1}, p.(name{1}), [], 'from', 0);
  end
  for name = of_sort (l, 'fraction')
    x = qn.impl.numbers (who, name{1}, p.(name{1}), [], 'above', 0);
    if x >= 1, error ('qn:input', '%s: "%s" must be below 1, got %.15g', who, name{1}, x); end
  end
  law = struct ('kind', kind, 'parameters', p, 'note', '');
end

function finite_distances (who, name, x)
  k = find (isinf (diff (x)), 1);
  if ~isempty (k)
    error ('qn:input', '%s: "%s" goes from %g to %g between value %d and value %d: the distance is beyond all numbers', who, name, x(k), ...
           x(k + 1), k, k + 1);
  end
end

function x = checked (who, name, x, sort_of)
  switch sort_of
    case {'file', 'text'}
      x = qn.impl.chars (x);
      if ~ischar (x) || size (x, 1) > 1
        error ('qn:input', '%s: "%s" must be a text, got %s of class %s', who, name, mat2str (size (x)), class (x));
      end
    case 'function'
      if ~isa (x, 'function_handle')
        error ('qn:input', '%s: "%s" must be a function handle, such as @(x, v, s, t) 1e9 * x ^ 3, got class %s', who, name, class (x));
      end
    case 'knots'
      x = reshape (qn.impl.numbers (who, name, x, [], 'list'), [], 1);
      if numel (x) < 2, error ('qn:input', '%s: "%s" must be 2 values or more, got 1', who, name); end
      finite_distances (who, name, x);
    case 'grid'
      % Looked at by "prepare" of the law, which knows its size.
    case 'whole'
      x = qn.impl.numbers (who, name, x, [1 1], 'from', 0, 'to', 2000, 'whole');  % the observation of an element is a full matrix
    case 'count'
      x = qn.impl.count (who, name, x, 2000);
    case 'free list'
      x = reshape (qn.impl.numbers (who, name, x, [], 'list', 'empty'), [], 1);
    otherwise
      if isempty (strfind (sort_of, 'list'))
        x = qn.impl.scalar (who, name, x);
      else
        x = reshape (qn.impl.numbers (who, name, x, [], 'list'), [], 1);
      end
  end
end

function names = of_sort (l, word)
  names = sort (l.parameters(strncmp (l.parameters(:, 3), word, numel (word)), 1)).';
end

function same_length (who, p, names)
  for k = 2:numel (names)
    if numel (p.(names{k})) ~= numel (p.(names{1}))
      error ('qn:input', '%s: "%s" has %d values and "%s" has %d; as many are expected', who, names{1}, numel (p.(names{1})), ...
             names{k}, numel (p.(names{k})));
    end
  end
end
