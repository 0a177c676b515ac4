% I = REMI (H, K)  registry index of element K
function i = remi (h, k)
  s = struct (h);
  i = s(k).index;
end
