% WRITE_VALUE (ID, X)  writes the array X as text, every double with all its bits
%
%   d NDIMS EXTENTS VALUES   double, in hexadecimal; z for complex, real parts before imaginary ones
%   i NDIMS EXTENTS VALUES   int32
%   t LENGTH CODES           text
%   c NDIMS EXTENTS ELEMENTS cell
%   s NFIELDS NAMES NDIMS EXTENTS VALUES   struct, element by element
%   h N INDICES              chandle vector
function write_value (id, x)
  if isa (x, 'chandle')
    indices = zeros (1, numel (struct (x)));
    for k = 1:numel (indices), indices(k) = remi (x, k); end
    fprintf (id, 'h %d%s\n', numel (indices), sprintf (' %d', indices));
  elseif isstruct (x)
    names = fieldnames (x);
    fprintf (id, 's %d%s %s\n', numel (names), sprintf (' %s', names{:}), extents (x));
    for k = 1:numel (x)
      for n = 1:numel (names), write_value (id, x(k).(names{n})); end
    end
  elseif iscell (x)
    fprintf (id, 'c %s\n', extents (x));
    for k = 1:numel (x), write_value (id, x{k}); end
  elseif ischar (x)
    fprintf (id, 't %d%s\n', numel (x), sprintf (' %d', double (x)));
  elseif isa (x, 'int32')
    fprintf (id, 'i %s%s\n', extents (x), sprintf (' %d', x));
  elseif isa (x, 'double') && ~issparse (x)
    kind = 'd';
    values = real (x(:));
    if iscomplex (x)
      kind = 'z';
      values = [values; imag(x(:))];
    end
    fprintf (id, '%s %s\n', kind, extents (x));
    lines = num2hex (values).';
    lines(end + 1, :) = sprintf ('\n');
    if ~isempty (values), fwrite (id, lines(:)); end
  else
    error ('an array of class %s cannot be written', class (x));
  end
end

function text = extents (x)
  text = sprintf ('%d%s', ndims (x), sprintf (' %d', size (x)));
end
