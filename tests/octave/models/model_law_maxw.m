% [S, CTX] = MODEL_LAW_MAXW (S, T, CTX)  internal-state law with explicit sub-steps
%
% iopt(3) values of an element, iopt(4) of them states, iopt(5) elements; opt(3) increment, opt(4) sub-steps, then the blocks
% Cu, Dv, B, A, E from opt(6) on. What would be committed past the end of an array is dropped.
function [s, ctx] = model_law_maxw (s, t, ctx)
  [len, pages] = model_page (s);
  if pages < 2, error ('Need unlj1 as last dim'); end
  if s.opt(3) == 0, s.opt(3) = t; end
  h = s.opt(3);
  steps = fix (s.opt(4));
  width = double (s.iopt(3));
  order = double (s.iopt(4));
  block = (width + order) * width;
  cu = 5;
  dv = cu + block;
  b = cu + 2 * block;
  a = b + width * order;
  e = a + order * order;
  back = 2 * len;
  own = isfield (s, 'snl') && ~isempty (s.snl);
  for element = 1:double (s.iopt(5))
    o = (element - 1) * width + 1;
    for k = 1:steps
      theta = k / steps;
      if width > 0
        for i = 1:order
          s.unl(o + i) = s.unl(back + o + i) + h * s.vnl(back + o + i);
        end
        ub = (1 - theta) * s.unl(back + o) + theta * s.unl(o);
        vb = (1 - theta) * s.vnl(back + o) + theta * s.vnl(o);
        for i = 1:width
          r = s.opt(b + i) * ub;
          for j = 1:order
            r = r + s.opt(a + i + (j - 1) * order) * s.unl(o + j);
          end
          r = r + s.opt(e + i) * vb;
          s.vnl(o + i) = r;
          if back + o + i <= numel (s.vnl), s.vnl(back + o + i) = r; end
          if back + o + i <= numel (s.unl), s.unl(back + o + i) = s.unl(o + i); end
        end
      end
      force = 0;
      for i = 0:width
        force = force + (s.opt(cu + 1 + i) * s.unl(o + i) + s.opt(dv + 1 + i) * s.vnl(o + i));
      end
      if own, s.snl(o) = force; else, s.unl(o) = force; end
    end
  end
  ctx = model_store_state (s, ctx);
end
