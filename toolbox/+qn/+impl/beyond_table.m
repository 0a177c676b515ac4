% FOUND = BEYOND_TABLE (LAW, X)  whether the displacements X leave the table of a law, as rows {code, level, text}
%
% The end segments of the recipes are meant to go on; that of a bearing is only a tangent.
function found = beyond_table (law, x)
  found = cell (0, 3);
  if isempty (x) || (~isempty (law.note) && isempty (strfind (law.note, 'bearing'))), return, end
  knots = law.parameters.displacement;
  if min (x(:)) < knots(1) || max (x(:)) > knots(end)
    found = {'table_left', 'note', ...
             sprintf(['the motion goes from %g to %g m, the table from %g to %g m; beyond it the end segments go on: add ' ...
                      'knots if that is not meant'], min (x(:)), max (x(:)), knots([1 end]))};
  end
end
