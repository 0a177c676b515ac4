function s = struct (v)
  quarn ('chandleclear');
  s = builtin ('struct', v);
end
