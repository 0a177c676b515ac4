% YES = LINK_LEADS_SOMEWHERE (DOCUMENT, LINK)  the file of a relative link exists, and has the heading that its #anchor names
function yes = link_leads_somewhere (document, link)
  parts = strsplit (link, '#');
  target = document;
  if ~isempty (parts{1}), target = fullfile (fileparts (document), parts{1}); end
  yes = exist (target, 'file') > 0;
  if ~yes || numel (parts) < 2, return, end
  anchors = regexprep (lower (document_headings (target)), '[^a-z0-9 _-]', '');
  yes = any (strcmp (strrep (anchors, ' ', '-'), parts{2}));
end
