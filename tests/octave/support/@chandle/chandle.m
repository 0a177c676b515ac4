% H = CHANDLE (I)  vector of registry indices I as one object
function h = chandle (i)
  h = class (struct ('index', num2cell (reshape (i, 1, []))), 'chandle');
end
