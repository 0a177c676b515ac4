% ARGS = STRUCTURE (WHO, S, ARGS)  arguments of qn.modal from the fields of a structure S, a rotor or plain, and names and values ARGS
%
% Without a speed of its own the structure takes 'speed' from ARGS. With 'speeds' the bearings of a rotor are those of every speed.
function args = structure (who, s, args)
  if mod (numel (args), 2) ~= 0
    error ('qn:input', ['%s: names and values expected in pairs after the structure, got %d arguments there; a speed is given as ' ...
                        '''speed'', W'], who, numel (args));
  end
  by_speed = isfield (s, 'parts') && isfield (s.parts, 'by_speed') && s.parts.by_speed;
  at = find (cellfun (@(x) ischar (x) && strcmpi (x, 'speeds'), args(1:2:end)), 1);
  if ~isempty (at)
    speeds = args{2 * at};
    args(2 * at - 1:2 * at) = [];
    if ~by_speed
      error ('qn:input', ['%s: "speeds" is for a rotor of qn.rotor with bearings that depend on the speed, which this one has ' ...
                          'not; give "speed"'], who);
    end
  elseif isempty (s.K) && isfield (s, 'Ks')
    error ('qn:input', ['%s: the bearings of this rotor depend on the speed; give one with qn.rotor (R, ''speed'', W), or for run-ups ' ...
                        'their range with ''speeds'', [W1 W2 ...]'], who);
  end
  if isfield (s, 'parts')
    qn.impl.rotor.own_fields (who, s);
    qn.impl.rotor.formed_at (who, s);
  end
  if ~isempty (at)
    further = qn.impl.rotor.through_speeds (who, s, speeds);
    args = [further(1:2), args, further(3:end)];
    if any (s.N(:)), args = [args, {'N', s.N}]; end
    return
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
