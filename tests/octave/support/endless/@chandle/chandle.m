% H = CHANDLE (N)  vector of N handles, which takes no memory: a structure without fields
function h = chandle (n)
  h = class (cell2struct (cell (0, n), {}, 1), 'chandle');
end
