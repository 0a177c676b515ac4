% Stands in for the toolbox function that finds forces by a law's name. Records its arguments in the global HAPSEL_CALLS, a
% cell with one cell of arguments a call, and doubles the element's "snl" in place.
function hapsel (varargin)
  global HAPSEL_CALLS
  HAPSEL_CALLS{end + 1} = varargin;
  if isfield (varargin{1}, 'snl') && ~isempty (varargin{1}.snl)
    snl = varargin{1}.snl;
    change_in_place (snl, snl);
  end
end
