% RES = INTERRUPTED (RES)  keeps what a run had reached when it was ended from outside; without an argument, gives it ([]: none)
function res = interrupted (res)
  persistent kept
  mlock
  if nargin > 0, kept = res; end
  res = kept;
end
