# Reads the lists of mutants: a line for each with name, file, old line, new line, tests and reason, apart by the character 31.
#
#   file src/sparse/sp_tbb.cpp          what follows belongs to this file,
#   tests unit:SpTbb.* suite_tbbp       and these tests can see it, the likely ones first
#   - old line                          as it stands in the file, without the blanks in front; once
#   + new line
#   first suite_views                   optional: tests to run before those of the file
#   same because no row is negative     optional: why no test can see it
function put() {
  if (old == "") return
  if (!changed) { print FILENAME ": no new line for - " old > "/dev/stderr"; exit 1 }
  base = file
  sub(/.*\//, "", base)
  sub(/\.cpp$/, "", base)
  print base "." ++count[base], file, old, new, (first == "" ? "" : first " ") tests, same
  old = new = first = same = ""
  changed = 0
}
BEGIN { OFS = "\037" }
/^#/ || /^$/ { next }
/^file / { put(); file = substr($0, 6); tests = ""; next }
/^tests / { put(); tests = substr($0, 7); next }
/^- / { put(); old = substr($0, 3); next }
/^\+/ { new = substr($0, 3); changed = 1; next }
/^first / { first = substr($0, 7); next }
/^same / { same = substr($0, 6); next }
{ print FILENAME ":" FNR ": not understood: " $0 > "/dev/stderr"; exit 1 }
END { put() }
