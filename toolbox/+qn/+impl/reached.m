% KEY = REACHED ()      a place for what a run reaches, for the case that it is ended from outside
% REACHED (KEY, RES)    puts a part of the run there, in place of the one before
% RES = REACHED (KEY)   takes it out ([]: there is none) and frees the place; runs that began within this one are over then
%
% It stays when a function of the user's says "clear all" during the run.
function x = reached (key, res)
  persistent runs
  mlock
  if nargin == 0
    x = numel (runs) + 1;
    runs{x} = [];
  elseif nargin == 2
    runs{key} = res;
  else
    x = [];
    if key > numel (runs), return, end
    x = runs{key};
    runs = runs(1:key - 1);
  end
end
