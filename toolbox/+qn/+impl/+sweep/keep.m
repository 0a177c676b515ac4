% KEEP (FILE, S)  writes the fields of S: under another name first, so that FILE is there as a whole or not at all
function keep (file, s)
  part = [tempname(fileparts (file)) '.part'];
  if exist ('OCTAVE_VERSION', 'builtin')
    % This form keeps functions, classes and every bit of a number.
    save ('-binary', part, '-struct', 's');
    [failed, why] = rename (part, file);
  else
    save (part, '-struct', 's', '-v7');
    [done, why] = movefile (part, file, 'f');
    failed = ~done;
  end
  if failed, error ('qn:input', 'qn.sweep: cannot write %s: %s', file, why); end
end
