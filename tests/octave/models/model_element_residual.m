% [R, S, CTX] = MODEL_ELEMENT_RESIDUAL (S, R, T, CTX)  observe, law, scatter
%
% S is the element's structure; CTX holds u, v and FNL. The law is the model function MODEL_LAW_<keyword in lower case>.
function [r, s, ctx] = model_element_residual (s, r, t, ctx)
  n = model_page (s);
  c = model_view (field_or_empty (s, 'c'));
  if isfield (s, 'vnl') && ~isempty (s.vnl), s.vnl = observe (s.vnl, n, c, ctx.v); end
  if n > 0, s.unl = observe (s.unl, n, c, ctx.u); end
  [s, ctx] = feval (['model_law_' lower(keyword (s.opt(1)))], s, t, ctx);
  force = model_forces (s);
  if ~isempty (force), r = scatter (r, model_view (field_or_empty (s, 'b')), force); end
end

function y = observe (y, n, c, x)
  y(1:max (n, 1)) = 0;
  if isempty (c.pr), return, end
  if ~c.sparse
    y(1:c.rows) = reshape (c.pr, c.rows, c.cols) * x(1:c.cols);
  else
    for i = 1:c.rows, y(i) = y(i) + model_line (c, i, x); end
  end
end

function r = scatter (r, b, force)
  if isempty (b.pr), return, end
  if ~b.sparse
    if b.trans, r(1:b.cols) = r(1:b.cols) + b.pr(1:b.cols) * force(1); end
  elseif b.trans
    w = zeros (b.cols, 1);
    for i = 1:b.rows
      k = b.jc(i) + 1:b.jc(i + 1);
      w(b.ir(k) + 1) = w(b.ir(k) + 1) + force(i) * b.pr(k);
    end
    r(1:b.cols) = r(1:b.cols) + w;
  else
    for i = 1:b.rows, r(i) = r(i) + model_line (b, i, force); end
  end
end

function x = field_or_empty (s, name)
  x = [];
  if isfield (s, name), x = s.(name); end
end

% The characters of a law code, first character in the lowest byte. A double rounds those of seven: their words are compared.
function word = keyword (code)
  code = fix (code);
  for long = {'Contact', 'Surface', 'BoucWen', 'Journal'}
    word = long{1};
    if code == sum (word .* 256 .^ (0:6)), return, end
  end
  word = '';
  while code > 0
    word(end + 1) = char (mod (code, 256));
    code = floor (code / 256);
  end
end
