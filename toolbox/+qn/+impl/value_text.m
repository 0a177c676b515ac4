% TEXT = VALUE_TEXT (VALUE)  the value of a handle in words
function text = value_text (value)
  if isa (value, 'v_handle'), value = get (value, 'file'); end
  if ~isstruct (value)
    text = sprintf ('value of class %s, %s', class (value), sized (size (value)));
  elseif isfield (value, 'tft')
    text = integrator (value);
  elseif isfield (value, 'opt') && ~isempty (value.opt)
    text = nonlinear (value);
  elseif isfield (value, 'pr')
    text = matrix (value);
  else
    names = fieldnames (value);
    text = sprintf ('structure with the fields %s', strjoin (names.', ', '));
  end
end

function text = integrator (value)
  d = double (value.data(:));
  beta = 1 / (d(5) * d(1) ^ 2);
  t = value.tft(1, :);
  text = sprintf ('Newmark integrator, beta %g, gamma %g, step %g s, %d modes, %d load rows, %d steps', beta, d(4) * beta * d(1), ...
                  d(1), size (value.r, 1), size (value.tft, 1) - 1, max (numel (t) - 1, 0));
  if numel (t) > 0, text = sprintf ('%s from %g to %g s', text, t([1 end])); end
end

function text = nonlinear (value)
  [law, step] = qn.impl.unpack_law (value);
  if isempty (law)
    text = sprintf ('nonlinear element, law number %.17g', value.opt(1));
  else
    text = ['nonlinear element: ' qn.impl.law_text(law)];
  end
  if ~isempty (step), text = sprintf ('%s; step %g s', text, step); end
  if isfield (value, 'unl'), text = sprintf ('%s; observes %d values', text, size (value.unl, 1) * size (value.unl, 2)); end
end

function text = matrix (value)
  dims = [0 0];
  if isfield (value, 'dims') && numel (value.dims) > 1
    dims = value.dims(1:2);
  elseif isfield (value, 'jc')
    dims = (size (value.jc, 1) - 1) * [1 1];
  end
  text = sprintf ('matrix %s, %d stored values', sized (dims), numel (value.pr));
  if isfield (value, 'ir') && ~isempty (value.ir) && value.ir(1) == -1, text = [text ', diagonal']; end
  if isfield (value, 'trans') && ~isempty (value.trans) && value.trans(1) ~= 0, text = [text ', stored transposed']; end
end

function text = sized (dims)
  text = sprintf ('%dx', dims);
  text = text(1:end - 1);
end
