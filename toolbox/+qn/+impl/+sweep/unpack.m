% JOB = UNPACK (FILE, DIGEST)  what pack stored, in a process that runs cases; kept there for its next call
%
% Reading the file runs what is in it. So a copy of it is looked at first, in a folder where nobody else can write.
function job = unpack (file, digest)
  persistent kept known
  if isempty (known) || ~strcmp (known, digest)
    private = qn.impl.files.private_folder ();
    tidy = onCleanup (@() qn.impl.sweep.remove (private));
    copy = fullfile (private, 'copy');
    why = qn.impl.files.replace_bytes (copy, qn.impl.files.bytes_of (file));
    if ~isempty (why), error ('qn:input', 'qn.sweep: %s cannot be read: %s', file, why); end
    if ~strcmp (hash ('sha256', char (qn.impl.files.bytes_of (copy))), digest)
      error ('qn:input', 'qn.sweep: %s is not the file that the sweep wrote; nothing in it is run', file);
    end
    kept = load (copy);
    kept.f = qn.impl.sweep.carried (kept.f);
    known = digest;
  end
  job = kept;
end
