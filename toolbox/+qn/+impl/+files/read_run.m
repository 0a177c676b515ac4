% RES = READ_RUN (WHO, FILE)  the result of qn.run in a file that it wrote; nothing that the file holds is executed
function res = read_run (who, file)
  if ~exist (file, 'file') || exist (file, 'dir'), error ('qn:input', '%s: there is no file %s', who, file); end
  try
    res = qn.impl.files.unpack_run (qn.impl.files.read_data (file));
  catch err
    error ('qn:input', '%s: %s is no run that can be gone on with: %s. Files of other versions: %s (load (FILE)), if you trust them', ...
           who, file, err.message, who);
  end
end
