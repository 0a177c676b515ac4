% C = COLOURS (K)  colour K of a set that stays apart in grey and for colour-blind readers (Okabe and Ito)
function c = colours (k)
  all = [0 114 178; 213 94 0; 0 158 115; 204 121 167; 86 180 233; 230 159 0; 0 0 0] / 255;
  c = all(mod (k - 1, size (all, 1)) + 1, :);
end
