% [ENGINE, WORKERS] = CHOOSE_ENGINE (WORD, WORKERS, COUNT)  what runs COUNT cases, an element of engine_list
function [engine, workers] = choose_engine (word, workers, count)
  list = qn.impl.sweep.engine_list ();
  host = 'matlab';
  if exist ('OCTAVE_VERSION', 'builtin'), host = 'octave'; end
  list = list(cellfun (@(h) isempty (h) || strcmp (h, host), {list.host}));
  if ~ischar (word) || ~any (strcmp (word, [{'auto'}, {list.word}]))
    words = sprintf (', ''%s''', list(1:end - 1).word);
    error ('qn:input', 'qn.sweep: the engine must be ''auto''%s or ''%s''', words, list(end).word);
  end
  if isempty (workers) && strcmp (host, 'octave') && any (strcmp (word, {'auto', 'parallel'})), workers = nproc (); end
  if strcmp (word, 'auto')
    word = 'parallel';
    if count < 2 || isequal (workers, 1), word = 'serial'; end
  end
  engine = list(strcmp (word, {list.word}));
  why = engine.lacking ();
  if isempty (why), return, end
  if isempty (engine.instead), error ('qn:engine', 'qn.sweep: %s', why); end
  warning ('qn:serial', '%s', why);
  engine = list(strcmp (engine.instead, {list.name}));
end
