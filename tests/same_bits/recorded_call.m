% OUT = RECORDED_CALL (ID, NAME, NLHS, COMMAND, ...)  calls the module and writes the call into the file ID
%
% Written are the NAME of the case, all arguments before the call, all arguments after it ("=" for one that kept its bits) and the NLHS
% results, which OUT holds. A name begins with "one" where no sum of two or more terms is formed inside a BLAS routine, else with "sum".
function out = recorded_call (id, name, nlhs, varargin)
  fprintf (id, 'call %s %d %d\n', strrep (name, ' ', '_'), nlhs, numel (varargin));
  before = fresh (varargin);
  cellfun (@(x) write_value (id, x), before);
  out = cell (1, nlhs);
  if nlhs > 0
    [out{:}] = quarn (varargin{:});
  else
    quarn (varargin{:});
  end
  for k = 1:numel (varargin)
    if same_bits (varargin{k}, before{k})
      fprintf (id, '=\n');
    else
      write_value (id, varargin{k});
    end
  end
  cellfun (@(x) write_value (id, x), out);
end

function same = same_bits (a, b)
  if isstruct (a)
    same = same_bits (struct2cell (a), struct2cell (b));
  elseif iscell (a)
    same = all (cellfun (@same_bits, a(:), b(:)));
  elseif isa (a, 'double')
    same = isequal (bits (a), bits (b));
  else
    same = isequal (a, b);
  end
end

function b = bits (x)
  b = typecast ([real(x(:)); imag(x(:))], 'uint64');
end
