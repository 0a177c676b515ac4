% SAME_AS_MODEL (RUN)             a run of the module leaves the same bits in every array as MODEL_NEWMARK does
% SAME_AS_MODEL (RUN, TOLERANCE)  or the same values within TOLERANCE times the largest value of the array
% SAME_AS_MODEL (RUN, TOLERANCE, true)  with registered handles instead of a cell list; TOLERANCE [] asks for the same bits
%
% RUN has the fields list (a cell), model, u, v, a, opt, mem, out. Its arrays are not written.
function got = same_as_model (run, tolerance, register)
  if nargin < 2, tolerance = []; end
  if nargin < 3, register = false; end
  x = fresh (run);
  wanted = model_newmark (x.list, x.model, x.u, x.v, x.a, x.opt, x.mem, x.out);
  got = fresh (run);
  list = got.list;
  if register, [list, indices] = registered (got.list); end
  quarn ('chandlediagnewmark', list, got.model, got.u, got.v, got.a, got.opt, got.mem, got.out);
  if register
    for k = 1:numel (indices)
      got.list{k} = quarn ('chandleget', indices(k));
      quarn ('chandleclear', indices(k));
    end
  end
  same ('u', got.u, wanted.u, tolerance);
  same ('v', got.v, wanted.v, tolerance);
  same ('a', got.a, wanted.a, tolerance);
  same ('model', got.model, wanted.model, tolerance);
  same ('mem', got.mem, wanted.mem, tolerance);
  same ('out', got.out, wanted.out, tolerance);
  same ('list', got.list, wanted.list, tolerance);
end

function same (name, got, wanted, tolerance)
  if iscell (wanted)
    for k = 1:numel (wanted), same (sprintf ('%s{%d}', name, k), got{k}, wanted{k}, tolerance); end
  elseif isstruct (wanted)
    names = fieldnames (wanted);
    for k = 1:numel (names), same ([name '.' names{k}], got.(names{k}), wanted.(names{k}), tolerance); end
  else
    try
      if isempty (tolerance) || ~isfloat (wanted)
        expect_equal (got, wanted);
      else
        near (got, wanted, tolerance);
      end
    catch err
      error ('%s: %s', name, err.message);
    end
  end
end

% Values that are not finite must be the same ones.
function near (got, wanted, tolerance)
  finite = isfinite (wanted);
  expect_equal (got(~finite), wanted(~finite));
  off = max (abs (got(finite) - wanted(finite)));
  most = max (abs (wanted(finite)));
  if any (~(off <= tolerance * most)), error ('off by %g where the largest value is %g (tolerance %g)', off, most, tolerance); end
end
