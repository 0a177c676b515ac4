% LINES = ERROR_TEXTS ()  how errors of the module arrive in this host: identifier and text of refused calls
function lines = error_texts ()
  key = max ([quarn('chandleget'); 0]) + 1000;
  lines = {refused('no such command'), refused('tbbp', 1), refused('chandleget', key)};
  quarn ('chandleclear', key);      % asking for a handle that is none leaves its key
end

function line = refused (varargin)
  line = 'NO ERROR';
  try
    quarn (varargin{:});
  catch err
    line = sprintf ('[%s] %s', err.identifier, regexprep (err.message, '\s+', ' '));
  end
end
