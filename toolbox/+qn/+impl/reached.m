% KEY = REACHED (RES)            a place for a run, which begins with RES; its histories "q", "state" and "force" have room for all columns
% REACHED (KEY, COLUMNS, PART)   puts the histories of a piece into these columns, in place: nothing else refers to them during a run
% REACHED (KEY, NOTED, KEPT)     notes all other fields, and how many columns belong to them, should the run be ended from outside
% RES = REACHED (KEY, 'so far')  the histories, with room for all columns; other fields as the run began
% RES = REACHED (KEY)            takes it out as it was noted ([]: there is none) and frees the place; runs that began within this one are
%                                over then
%
% It stays when a function of the user's says "clear all" during the run. Ctrl-C may come between any two statements: what belongs
% together is noted in one.
function x = reached (key, what, part)
  persistent runs notes
  mlock
  x = [];
  if isstruct (key)
    x = numel (runs) + 1;
    runs{x} = key;
    notes{x} = {struct(), size(key.q, 2)};
  elseif nargin == 1
    if key > numel (runs), return, end
    x = runs{key};
    [noted, kept] = notes{key}{:};
    for name = fieldnames (noted).', x.(name{1}) = noted.(name{1}); end
    x = qn.impl.sized (x, kept);
    runs = runs(1:key - 1);
  elseif ischar (what)
    x = runs{key};
  elseif isstruct (what)
    notes{key} = {what, part};
  else
    runs{key}.q(:, what) = part.q;
    runs{key}.state(:, what) = part.state;
    runs{key}.force(:, what) = part.force;
  end
end
