% WARN_OF (FOUND)  the errors and warnings among the findings as warnings qn:check:CODE, each code once
function warn_of (found)
  said = {};
  before = warning ('off', 'backtrace');
  back = onCleanup (@() warning (before));
  for k = 1:numel (found)
    if strcmp (found(k).level, 'note') || any (strcmp (found(k).code, said)), continue, end
    said{end + 1} = found(k).code;
    more = sum (strcmp ({found.code}, found(k).code)) - 1;
    text = found(k).text;
    if more > 0, text = sprintf ('%s (and %d more like this; qn.check lists them)', text, more); end
    warning (['qn:check:' found(k).code], 'qn.check: %s', text);
  end
end
