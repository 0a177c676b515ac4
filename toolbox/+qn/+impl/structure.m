% ARGS = STRUCTURE (WHO, S, ARGS)  arguments of qn.modal from the fields of a structure S, a rotor or plain, and names and values ARGS
%
% Without a speed of its own the structure takes 'speed' from ARGS.
function args = structure (who, s, args)
  if mod (numel (args), 2) ~= 0
    error ('qn:input', ['%s: names and values expected in pairs after the structure, got %d arguments there; a speed is given as ' ...
                        '''speed'', W'], who, numel (args));
  end
  if isempty (s.K) && isfield (s, 'Ks')
    error ('qn:input', '%s: the bearings of this rotor depend on the speed; give it with qn.rotor (R, ''speed'', W)', who);
  end
  if isfield (s, 'parts')
    qn.impl.rotor.own_fields (who, s);
    qn.impl.rotor.formed_at (who, s);
  end
  own = isfield (s, 'Ks');
  further = {};
  k = s.K;
  if own
    k = s.Ks;
    if ~isequal (s.K, s.Ks), further = {'K', s.K - s.Ks}; end
  end
  args = [{k, s.M}, args, further];
  for name = {'C', 'G', 'speed'}
    if isfield (s, name{1}) && ~isempty (s.(name{1})), args = [args, name, {s.(name{1})}]; end
  end
  if isfield (s, 'N') && any (s.N(:)), args = [args, {'N', s.N}]; end
end
