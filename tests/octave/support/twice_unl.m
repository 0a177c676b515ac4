% F = TWICE_UNL (E, ...)  law of an element for its field "Fu": twice what it observes
function f = twice_unl (e, varargin)
  f = 2 * e.unl;
end
