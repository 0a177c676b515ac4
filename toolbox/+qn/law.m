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
%   'power'        stiffness [N/m^p], exponent p              force = stiffness * x^p. With an exponent that is not a whole number, x
%                                                            must not be negative.
%   'exponential'  scale [N], base                           force = scale * base^x, x in m
%   'table'        displacement [m], force [N]               linear between the knots, which ascend; beyond them the end segments go on
%   'maxwell'      springs [N/m], dampers [N s/m],           spring-and-damper branches in parallel, and a spring beside them; the
%                  stiffness* [N/m] (0)                      states advance by the explicit Euler rule
%   'dahl'         stiffness [N/m], slip [N], exponent* (1)  dF/dx = stiffness * (1 - F/slip * sign (v))^exponent. Exponent 0: an elastic
%                                                            spring that slides at the slip force (Jenkins element)
%   'stickslip'    contact [N/m], slip [N],                  the module's stick-slip law: the slider moves when the spring force
%                  stiffness* [N/m] (0), ground* [N/m] (0)   truncated to whole newtons reaches the slip force, and the spring force
%                                                            then changes its sign. For Coulomb friction use 'dahl' or qn.slider.
%   'clima2'       displacement [m], normal [N],             two Dahl branches whose slip force is friction * normal(x3) and whose
%                  growth [N/m], friction, exponent* (1),    stiffness is growth(x3), tables of a third displacement x3, and the
%                  stiffness* [N/m] (0), offset* [N] (0)     force normal(x3) - offset along it. Observes three displacements.
%
% Output
%   LAW   struct: kind, parameters (struct of the values), note (text)
%
% Errors
%   qn:input  unknown kind or name, a parameter is missing or has a value that makes no sense
%
% Example
%   brace = qn.law ('power', 'stiffness', 5e9, 'exponent', 3);
%   qn.describe (brace)
%
% See also qn.describe, qn.element, qn.force, qn.gap, qn.slider, qn.zener
function law = law (kind, varargin)
  if nargin < 1 || ~ischar (kind), error ('qn:input', 'qn.law: the kind of law expected, such as ''table''; see help qn.law'); end
  who = sprintf ('qn.law, ''%s''', kind);
  need = '<required>';
  switch kind
    case 'power'
      p = struct ('stiffness', need, 'exponent', need);
    case 'exponential'
      p = struct ('scale', need, 'base', need);
    case 'table'
      p = struct ('displacement', need, 'force', need);
    case 'maxwell'
      p = struct ('springs', need, 'dampers', need, 'stiffness', 0);
    case 'dahl'
      p = struct ('stiffness', need, 'slip', need, 'exponent', 1);
    case 'stickslip'
      p = struct ('contact', need, 'slip', need, 'stiffness', 0, 'ground', 0);
    case 'clima2'
      p = struct ('displacement', need, 'normal', need, 'growth', need, 'friction', need, 'exponent', 1, 'stiffness', 0, 'offset', 0);
    otherwise
      error ('qn:input', ['qn.law: no law called "%s"; there are power, exponential, table, maxwell, dahl, stickslip and ' ...
                          'clima2'], kind);
  end
  p = qn.impl.options (who, p, varargin);
  names = fieldnames (p);
  lists = {'displacement', 'force', 'normal', 'growth', 'springs', 'dampers'};
  for k = 1:numel (names)
    x = p.(names{k});
    if any (strcmp (names{k}, lists))
      if ~(isnumeric (x) && isreal (x) && ~isempty (x) && all (isfinite (x(:))))
        error ('qn:input', '%s: "%s" must be finite real numbers', who, names{k});
      end
      p.(names{k}) = double (x(:));
    else
      qn.impl.scalar (who, names{k}, x);
      p.(names{k}) = double (x);
    end
  end
  same_length (who, p, intersect (lists([1 2 3 4]), names));
  same_length (who, p, intersect (lists([5 6]), names));
  if isfield (p, 'displacement') && any (diff (p.displacement) < 0)
    error ('qn:input', '%s: "displacement" must ascend; sort the table by it', who);
  end
  for name = intersect ({'slip', 'springs', 'dampers', 'friction'}, names.')
    if any (p.(name{1}) <= 0), error ('qn:input', '%s: "%s" must be above 0', who, name{1}); end
  end
  law = struct ('kind', kind, 'parameters', p, 'note', '');
end

function same_length (who, p, names)
  for k = 2:numel (names)
    if numel (p.(names{k})) ~= numel (p.(names{1}))
      error ('qn:input', '%s: "%s" has %d values and "%s" has %d; as many are expected', who, names{1}, numel (p.(names{1})), ...
             names{k}, numel (p.(names{k})));
    end
  end
end
