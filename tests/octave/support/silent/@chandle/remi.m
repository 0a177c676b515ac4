% REMI (H, K)  a method that answers with nothing
function varargout = remi (h, k)
  varargout = {};
end
