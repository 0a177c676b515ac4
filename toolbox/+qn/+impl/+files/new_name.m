% [STATE, WHY] = NEW_NAME (FROM, TO)  gives a file a second name TO that nothing has: 'made', or 'there' where something has it
%
% One step of the file system: of two processes that try at the same time one gets it. STATE is '' where the file system knows no second
% names; WHY says so.
function [state, why] = new_name (from, to)
  why = '';
  state = 'made';
  if exist ('OCTAVE_VERSION', 'builtin')
    [failed, why] = link (from, to);
  else
    failed = 0;
    try
      java.nio.file.Files.createLink (java.io.File (to).toPath (), java.io.File (from).toPath ());
    catch err
      failed = -1;
      why = err.message;
    end
  end
  if failed == 0, return, end
  state = '';
  if exist (to, 'file'), state = 'there'; end
end
