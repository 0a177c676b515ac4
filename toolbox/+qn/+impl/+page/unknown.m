% HTML = UNKNOWN (ERR)  the paragraph in place of what an error kept from the page
function html = unknown (err)
  html = sprintf ('<p>not shown: %s</p>', qn.impl.page.escaped (err.message));
end
