% OWN_FIELDS (WHO, R)  refuses a rotor with a field that looks like an option of qn.rotor, which nothing would read
function own_fields (who, r)
  options = {'shaft', 'outer', 'inner', 'young', 'density', 'poisson', 'shear', 'internal', 'disks', 'cylinders', 'bearings', 'seals'};
  own = {'M', 'K', 'C', 'G', 'N', 'Ks', 'places', 'stator', 'nodes', 'speed', 'parts'};
  for name = fieldnames (r).'
    if any (strcmp (name{1}, own)) || ~any (strcmpi (name{1}, [options, own])), continue, end
    error ('qn:input', '%s: the field "%s" was set in a result of qn.rotor, and nothing reads it; make the rotor anew with it', ...
           who, name{1});
  end
end
