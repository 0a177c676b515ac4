% TELL (R)  one line a check: what was compared, how far it is off, what is allowed
function tell (r)
  for c = r.checks.'
    word = 'ok';
    if ~c.ok, word = 'FAILED'; end
    fprintf ('%s: %s off by %.2g, allowed %.2g: %s\n', r.name, c.text, c.error, c.tolerance, word);
  end
end
