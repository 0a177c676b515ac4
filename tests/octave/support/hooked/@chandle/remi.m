% I = REMI (H, K)  a method that first runs the function REMI_HOOK (global) with K; that may change the registry or raise an error
function i = remi (h, k)
  global REMI_HOOK
  REMI_HOOK (k);
  s = struct (h);
  i = s(k).index;
end
