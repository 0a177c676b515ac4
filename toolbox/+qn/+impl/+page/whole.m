% HTML = WHOLE (O, BODY)  the page around its parts, with the rules for screen and paper
function html = whole (o, body)
  style = {'body { font: 11pt/1.45 sans-serif; color: #111; max-width: 48em; margin: 2em auto; padding: 0 1em; }'
           'h1 { font-size: 1.6em; margin-bottom: 0.2em; } h2 { font-size: 1.2em; margin-top: 1.6em; border-bottom: 1px solid #888; }'
           'table { border-collapse: collapse; width: 100%; margin: 0.6em 0; }'
           'th, td { text-align: left; vertical-align: top; padding: 0.2em 0.6em; }'
           'tr { border-bottom: 1px solid #ccc; } thead tr { border-bottom: 2px solid #555; }'
           '.number { text-align: right; white-space: nowrap; }'
           '.facts th { width: 12em; font-weight: 600; } td { overflow-wrap: anywhere; }'
           'figure { margin: 0.8em 0; } figure img { max-width: 100%; }'
           'figcaption { font-size: 0.9em; color: #444; } .date { color: #444; margin-top: 0; } .error { color: #a00; font-weight: 700; }'
           '@media print { @page { size: A4; margin: 18mm; } body { max-width: none; margin: 0; padding: 0; font-size: 10pt; }'
           '  h2 { break-after: avoid; } figure, tr, table.facts { break-inside: avoid; } thead { display: table-header-group; } }'};
  notes = '';
  for k = 1:numel (o.note), notes = sprintf ('%s<p>%s</p>\n', notes, qn.impl.page.escaped (o.note{k})); end
  title = qn.impl.page.escaped (o.title);
  html = sprintf (['<!DOCTYPE html>\n<html lang="en">\n<head>\n<meta charset="utf-8">\n<title>%s</title>\n' ...
                   '<style>\n%s\n</style>\n</head>\n<body>\n<h1>%s</h1>\n<p class="date">%s</p>\n%s%s\n</body>\n</html>\n'], title, ...
                  strjoin (style.', sprintf ('\n')), title, qn.impl.page.escaped (o.date), notes, body);
end
