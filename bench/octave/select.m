% T = SELECT (RECORDS, GROUP)           records of a group as one struct array: variant, size, program, seconds, units
% T = SELECT (RECORDS, GROUP, VARIANT)  those of a variant of it
function t = select (records, group, variant)
  t = struct ('variant', {}, 'size', {}, 'program', {}, 'seconds', {}, 'units', {});
  for k = 1:numel (records)
    r = records{k};
    if ~strcmp (r.group, group) || (nargin > 2 && ~strcmp (r.variant, variant)), continue; end
    units = 1;
    if isfield (r, 'units') && ~isempty (r.units), units = r.units; end
    t(end + 1) = struct ('variant', r.variant, 'size', r.size, 'program', r.program, 'seconds', r.seconds, 'units', units);
  end
end
