% UNCHANGED (WHO, R)  refuses a rotor whose matrices are not those that it was made with: forming them anew would lose the change
function unchanged (who, r)
  qn.impl.rotor.formed_at (who, r);
  if isempty (r.K), return, end
  made = qn.impl.rotor.at_speed (r, r.speed);
  for name = 'MKC'
    if isequal (r.(name), made.(name)), continue, end
    error ('qn:input', ['%s: %s of the rotor was changed after qn.rotor made it, which is lost when its bearings are formed at another ' ...
                        'speed; give what you added as "bearings", "seals" or "shaft"'], who, name);
  end
end
