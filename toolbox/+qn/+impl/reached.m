% KEY = REACHED (RES)            a place for a run, which begins with RES; its histories "q", "state" and "force" have room for all columns
% REACHED (KEY, COLUMNS, PART)   puts the histories of a piece into these columns, in place: nothing else refers to them during a run
% REACHED (KEY, NOTED, KEPT)     notes all other fields, and how many columns belong to them, should the run be ended from outside
% RES = REACHED (KEY, 'so far')  the histories as they are, the other fields as noted
% RES = REACHED (KEY)            takes it out with the columns that were noted ([]: there is none) and frees the place; runs that began
%                                within this one are over then
%
% It stays when a function of the user's says "clear all" during the run.
function x = reached (key, what, part)
  persistent runs kept
  mlock
  x = [];
  if isstruct (key)
    x = numel (runs) + 1;
    runs{x} = key;
    kept(x) = size (key.q, 2);
  elseif nargin == 1
    if key > numel (runs), return, end
    x = qn.impl.sized (runs{key}, kept(key));
    runs = runs(1:key - 1);
  elseif ischar (what)
    x = runs{key};
  elseif isstruct (what)
    for name = fieldnames (what).', runs{key}.(name{1}) = what.(name{1}); end
    kept(key) = part;
  else
    runs{key}.q(:, what) = part.q;
    runs{key}.state(:, what) = part.state;
    runs{key}.force(:, what) = part.force;
  end
end
