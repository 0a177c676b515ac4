% FACTS = ROTOR (R)  a rotor of qn.rotor, rows of a name and what is said
function facts = rotor (r)
  count = @qn.impl.words.count;
  p = r.parts;
  nodes = size (r.places, 1);
  text = sprintf ('%s, %s', count (nodes, 'node', 'nodes'), count (size (p.M, 1), 'degree of freedom', 'degrees of freedom'));
  % A shaft of matrices has numbers for positions.
  if ~isequal (r.nodes(:).', 1:nodes), text = sprintf ('%s, from %.6g to %.6g m', text, r.nodes([1 end])); end
  x = r.places(:, 1);
  mass = full (sum (sum (p.M(x, x))));
  stator = '';
  if ~isempty (r.stator), stator = count (numel (r.stator), 'degree of freedom', 'degrees of freedom'); end
  internal = '';
  if any (r.N(:)), internal = 'yes: circulatory matrix'; end
  knots = [];
  if ~isempty (p.supports), knots = [p.supports.knots]; end
  speed = 'its matrices are the same at all speeds, but for the gyroscopic and the circulatory one';
  if p.by_speed && isempty (r.speed)
    speed = 'none: M, K and C are not formed, as supports depend on it';
  elseif p.by_speed
    speed = sprintf ('matrices at %.6g rad/s (%.5g rpm)', r.speed, r.speed * 30 / pi);
  end
  if ~isempty (knots), speed = sprintf ('%s; tables over %s', speed, qn.impl.words.span ('%.6g', knots, 'rad/s')); end
  facts = {'Shaft', text; 'Mass', sprintf('%.5g kg along x, shaft and disks', mass); 'Internal damping', internal; 'Stator', stator
           'Speed', speed};
  for k = 1:numel (p.supports), facts(end + 1, :) = {sprintf('Support %d', k), support(r, p.supports(k))}; end
  if isempty (p.supports), facts(end + 1, :) = {'Supports', 'none'}; end
end

function text = support (r, s)
  node = find (any (ismember (r.places, find (s.rows(1, :) > 0)), 2), 1);
  text = sprintf ('node %d', node);
  other = find (s.rows(1, :) < 0);
  if ~isempty (other), text = sprintf ('%s against the stator', text); end
  names = {'K', 'stiffness', 'N/m'; 'C', 'damping', 'N s/m'; 'M', 'added mass', 'kg'};
  for k = 1:3
    x = s.(names{k, 1});
    if isa (x, 'function_handle')
      text = sprintf ('%s, %s by speed', text, names{k, 2});
    elseif any (x(:))
      text = sprintf ('%s, %s %s', text, names{k, 2}, value_of (x, names{k, 3}));
    end
  end
end

% One number where all directions are alike, two where x and y are, else the matrix.
function text = value_of (x, unit)
  d = diag (x).';
  if any (any (x - diag (d))) || any (d(3:end))
    lines = arrayfun (@(k) strtrim (sprintf ('%.5g ', x(k, :))), 1:size (x, 1), 'UniformOutput', false);
    text = sprintf ('[%s] %s', strjoin (lines, '; '), unit);
  elseif d(1) == d(2)
    text = sprintf ('%.5g %s', d(1), unit);
  else
    text = sprintf ('%.5g and %.5g %s (x and y)', d(1:2), unit);
  end
end
