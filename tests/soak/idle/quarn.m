% Stands in for the module in rounds that measure what the host alone does to memory.
function varargout = quarn (varargin)
  varargout = num2cell (zeros (1, max (nargout, 1)));
end
