% DISPLAY  what each handle of a chandle vector is
%
%   display (H)
%
% One line an element: its index in the registry and what its value looks like. An index that is not registered (any more) is
% said to be free.
function display (h)
  fprintf ('%s = chandle vector of %d\n', inputname (1), numel (h));
  registered = quarn ('chandleget');
  for k = 1:numel (h)
    i = h(k).index;
    what = 'free';
    if any (registered == i)
      try
        what = describe (quarn ('chandleget', i));
      catch
        what = 'free';
      end
    end
    fprintf ('  (%d)  index %d: %s\n', k, i, what);
  end
end

% A handle's value says by its fields what it is.
function text = describe (value)
  if ~isstruct (value)
    text = sprintf ('value of class %s, %s', class (value), sized (size (value)));
  elseif isfield (value, 'tft')
    text = sprintf ('diagonal Newmark integrator, %d modes, %d time points', size (value.r, 1), size (value.tft, 2));
  elseif isfield (value, 'opt')
    text = sprintf ('nonlinear element, law "%s", %d observed', keyword (value.opt(1)), observed (value));
  elseif isfield (value, 'pr') && isfield (value, 'dims')
    text = sprintf ('matrix %s, %d stored values', sized (value.dims), numel (value.pr));
  elseif isfield (value, 'pr')
    text = sprintf ('matrix, %d stored values', numel (value.pr));
  else
    names = fieldnames (value);
    text = sprintf ('structure with the fields%s', sprintf (' %s', names{:}));
  end
end

function text = sized (dims)
  text = sprintf ('%dx', dims);
  text = text(1:end - 1);
end

function n = observed (value)
  n = 0;
  if isfield (value, 'unl'), n = size (value.unl, 1) * size (value.unl, 2); end
end

% The law's keyword is kept as a number, its first character in the lowest byte.
function word = keyword (code)
  word = '';
  code = fix (code);
  while code >= 1 && numel (word) < 8
    word(end + 1) = char (mod (code, 256));
    code = floor (code / 256);
  end
end
