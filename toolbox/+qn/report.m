% QN.REPORT  report of a run on one page: set-up, findings, pictures, contacts, energies, versions
%
% Purpose
%   Writes a page (HTML) that needs nothing else: no network, no other file, pictures are inside. Browsers show it and print it.
%
% Calls
%   qn.report (RES, FILE, ...)
%
% Input
%   RES    from qn.run or qn.resume, finished or not
%   FILE   name of the file, ending in .html or .htm; an existing one is replaced
%   Names and values
%     'title'     text of the heading ('Time simulation')
%     'note'      text, or cell of texts, a paragraph each: who, what for, which drawing ({})
%     'rows'      observation rows, or numbers of degrees of freedom, to draw ([]: where the first four elements observe; without
%                 elements where the motion is largest)
%     'names'     cell of texts for the rows ({})
%     'pictures'  true: draw (true)
%     'date'      text ('': now)
%
% Errors
%   qn:input  RES is no result, the rows do not fit the model, or the file cannot be written. What cannot be shown of a result, such as
%             the energies of one that keeps only some steps, is said on the page, with the reason.
%
% Example
%   model = qn.modal (4e4, 1, 'damping', 0.02);
%   stop = {qn.stop('gap', 1e-3, 'stiffness', 1e6), qn.observe(model, 1)};
%   res = qn.run (qn.simulation (model, 'step', 1e-4, 'steps', 2000, 'v0', 0.5, 'elements', stop), 'progress', false);
%   file = [tempname() '.html'];
%   qn.report (res, file, 'title', 'Mass between stops', 'note', 'A free swing that ends at the stops.', 'pictures', false);
%   delete (file);
%
% See also qn.run, qn.check, qn.contacts, qn.energies, qn.describe, qn.version
function report (res, file, varargin)
  who = 'qn.report';
  if nargin < 2, error ('qn:input', '%s: a result and the name of a file expected; see help %s', who, who); end
  qn.impl.expect_result_of (who, res, 'qn.run');
  o = qn.impl.options (who, struct ('title', 'Time simulation', 'note', {{}}, 'rows', [], 'names', {{}}, 'pictures', true, 'date', ...
                                    ''), varargin);
  file = qn.impl.chars (file);
  o.note = qn.impl.chars (o.note);
  o.names = qn.impl.chars (o.names);
  o.pictures = qn.impl.flag (who, 'pictures', o.pictures);
  if ischar (o.note), o.note = {o.note}; end
  if ischar (o.names), o.names = {o.names}; end
  if ~ischar (file) || isempty (regexpi (file, '\.html?$', 'once'))
    error ('qn:input', '%s: a name that ends in .html or .htm expected', who);
  end
  if ~ischar (o.title) || ~ischar (o.date), error ('qn:input', '%s: "title" and "date" must be texts', who); end
  if ~iscellstr (o.note) || ~iscellstr (o.names), error ('qn:input', '%s: "note" and "names" must be texts, or cells of texts', who); end
  if isempty (o.date), o.date = datestr (now (), 'yyyy-mm-dd HH:MM'); end
  if ~isempty (o.rows), o.rows = qn.impl.observation_rows (res.sim.model, o.rows, [who ': '], 'rows'); end
  if isempty (o.rows)
    [o.rows, names] = usual_rows (res);
    if isempty (o.names), o.names = names; end
  end
  if isempty (o.names), o.names = arrayfun (@(k) sprintf ('row %d', k), 1:size (o.rows, 1), 'uniformoutput', false); end
  if numel (o.names) ~= size (o.rows, 1)
    error ('qn:input', '%s: %d rows are drawn, "names" has %d texts', who, size (o.rows, 1), numel (o.names));
  end
  parts = {qn.impl.page.outcome(res, o), qn.impl.page.set_up(res.sim), qn.impl.page.findings_of(res), '', ...
           qn.impl.page.contact_list(res), qn.impl.page.energy_list(res), qn.impl.page.made_with()};
  if o.pictures, parts{4} = qn.impl.page.pictures (res, o); end
  text = qn.impl.page.whole (o, strjoin (parts, sprintf ('\n')));
  qn.impl.files.write_text (who, file, text);
end

% Where the elements look, each place once; else the degree of freedom that moves most.
function [rows, names] = usual_rows (res)
  rows = zeros (0, numel (res.sim.model.w));
  names = {};
  for e = res.sim.elements
    rows = [rows; full(e.observe)];
    names = [names, repmat({sprintf('at element %d', e.item)}, 1, size (e.observe, 1))];
  end
  if ~isempty (rows)
    [unused, first] = unique (rows, 'rows', 'first');
    first = sort (first);
    first = first(1:min (4, end));
    rows = rows(first, :);
    names = names(first);
    return
  end
  k = qn.impl.thinned (size (res.q, 2), 200);
  if isempty (res.q), k = []; end
  [unused, dof] = max (max (abs (res.sim.model.shapes * [res.q(:, k), res.sim.start.u(1:size (res.q, 1))]), [], 2));
  rows = qn.observe (res.sim.model, dof);
  names = {sprintf('degree of freedom %d', dof)};
end
