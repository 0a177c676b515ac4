function varargout = deal (f)
  quarn ('chandleclear');
  varargout = {f};
end
