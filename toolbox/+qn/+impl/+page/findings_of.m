% HTML = FINDINGS_OF (RES)  what qn.check says of the set-up and its run
function html = findings_of (res)
  try
    found = qn.check (res.sim, res);
    html = '<p>nothing to change</p>';
    if ~isempty (found)
      cells = [{found.level}.', {found.code}.', {found.text}.'];
      html = qn.impl.page.grid_of ({'Level', 'Code', 'Finding'}, cells);
    end
  catch err
    html = qn.impl.page.unknown (err);
  end
  html = sprintf ('<h2>Findings of the checks</h2>\n%s', html);
end
