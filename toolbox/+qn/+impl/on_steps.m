% T = ON_STEPS (T, H)  times that miss a step of H seconds by rounding get the bits of that step
function t = on_steps (t, h)
  near = round (t / h);
  at = abs (near * h - t) < 1e-6 * h;
  t(at) = near(at) * h;
end
