% [DONE, WHY] = RENAME_FILE (FROM, TO)  gives a file another name in the same file system, in place of a file of that name
%
% The call of the operating system: no shell sees the names and no character in them stands for others. MATLAB has it in its Java
% machine only; without that its movefile takes * in FROM, which the caller makes, as a pattern.
function [done, why] = rename_file (from, to)
  if exist ('OCTAVE_VERSION', 'builtin')
    [failed, why] = rename (from, to);
    done = failed == 0;
  elseif usejava ('jvm')
    why = 'the file system refuses it';
    source = java.io.File (from);
    done = source.renameTo (java.io.File (to));
  else
    [done, why] = movefile (from, to, 'f');
  end
end
