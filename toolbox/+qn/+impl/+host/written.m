% LINE = WRITTEN (NAME, BEFORE, NOW, COPY)  what became of an array to whose values BEFORE a product added 6, and of a copy made before
function line = written (name, before, now, copy)
  if isequal (now, before + 6)
    text = 'written';
  elseif isequal (now, before)
    text = 'NOT written';
  else
    text = ['CHANGED to ' sprintf('%g ', now)];
  end
  others = 'a copy made before kept its value';
  if ~isequal (copy, before), others = 'a copy made before changed too'; end
  line = sprintf ('%-34s %s, %s', name, text, others);
end
