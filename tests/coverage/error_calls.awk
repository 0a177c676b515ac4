# Which calls of host::fail and host::refuse no test reached.
#
#   awk -f error_calls.awk SOURCE... gcov=1 TEXT...
#
# The texts are what `gcov --branch-probabilities --branch-counts --relative-only --stdout` writes, started in the folder to which the
# names of the sources are relative; one for every object that a source was compiled into. That a line ran says nothing about
# `if (...) host::fail (...);`: the call must have been executed, and it is the last one of its statement. Ends with status 1 where a call
# was not reached, or where there is none.

# The sources: where the statements with an error call are.
!gcov {
  code = $0
  sub(/^ *\/\/.*/, "", code)
  calls = gsub(/(^|[^A-Za-z0-9_])(fail|refuse)\(/, "&", code)
  if (calls > 1) { printf "FAILED: two error calls on one line cannot be told apart: %s:%d\n", FILENAME, FNR; bad = 1 }
  if (calls > 0) {
    site = FILENAME ":" FNR
    sites[++count] = site
    texts[site] = $0
    sub(/^ */, "", texts[site])
  }
  if (site != "") site_of[FILENAME ":" FNR] = site
  if (code ~ /;( *\/\/.*| *})?$/) site = ""
  next
}

function finish() {
  if (here != "" && (called >= 0 ? called : ran)) reached[here] = 1
  here = ""
}

# A line of the text: count, number, source.
/^ *[-#=0-9]+\*?: *[0-9]+:/ {
  split($0, part, ":")
  number = part[2] + 0
  if (number == 0) {
    finish()
    if (part[3] == "Source") file = part[4]
    next
  }
  place = file ":" number
  if (!(place in site_of)) { finish(); next }
  if (place == site_of[place]) {
    finish()
    here = place
    called = -1
    ran = part[1] + 0 > 0
  }
  next
}

here != "" && /^call / { called = !/never executed/ }

END {
  finish()
  for (i = 1; i <= count; ++i) if (!(sites[i] in reached)) ++misses
  printf "%d error calls, %d that no test reached\n", count, misses
  for (i = 1; i <= count; ++i) if (!(sites[i] in reached)) printf "  %s: %s\n", sites[i], texts[sites[i]]
  if (count == 0) print "FAILED: no error calls found"
  if (misses > 0) print "FAILED: error calls that no test reached"
  exit (bad || misses > 0 || count == 0)
}
