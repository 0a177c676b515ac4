% REFUSE (T, LINE, FORMAT, ...)  the error for line LINE of the file T
function refuse (t, line, varargin)
  error ('qn:input', '%s: %s, line %d: %s', t.who, t.file, line, sprintf (varargin{:}));
end
