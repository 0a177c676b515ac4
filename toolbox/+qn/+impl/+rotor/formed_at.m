% FORMED_AT (WHO, R)  refuses a rotor with bearings by speed whose speed was set by hand: its matrices belong to another one
function formed_at (who, r)
  if ~isfield (r.parts, 'speed') || ~r.parts.by_speed || isequal (r.speed, r.parts.speed), return, end
  were = 'no speed';
  if ~isempty (r.parts.speed), were = sprintf ('%g rad/s', r.parts.speed); end
  error ('qn:input', ['%s: "speed" of the rotor was set to %s, and its bearings are those of %s: form them with qn.rotor (R, ' ...
                      '''speed'', W)'], who, mat2str (r.speed), were);
end
