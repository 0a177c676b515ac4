function varargout = deal (o)
  varargout = {};
end
