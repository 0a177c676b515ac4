# Line coverage from lcov's trace files: a line a file, the folders, the total, and every line that no test ran.
#
#   awk -v root=FOLDER/ -v least=97 -f lines.awk TRACE...
#
# Names are shown without root. Ends with status 1 where fewer than least percent of the lines ran, or where there are none.

function percent(part, whole) { return whole > 0 ? 100 * part / whole : 0 }

function row(name, ran, all) { printf "%6.1f %%  %5d of %5d  %s\n", percent(ran, all), ran, all, name }

function name_of(file) { return index(file, root) == 1 ? substr(file, length(root) + 1) : file }

/^SF:/ {
  file = substr($0, 4)
  if (!(file in seen)) { seen[file] = 1; files[++count] = file; lines[file] = 0 }
}

# The same source stands in a trace once for every object that it was compiled into.
/^DA:/ {
  split(substr($0, 4), part, ",")
  line = part[1] + 0
  if (!((file, line) in hits)) { lines[file]++; if (line > last[file]) last[file] = line }
  hits[file, line] += part[2]
}

END {
  for (i = 2; i <= count; ++i) {  # sorted by name
    for (k = i; k > 1 && files[k - 1] > files[k]; --k) { held = files[k]; files[k] = files[k - 1]; files[k - 1] = held }
  }
  for (i = 1; i <= count; ++i) {
    file = files[i]
    for (k = 1; k <= last[file]; ++k) {
      if (!((file, k) in hits)) continue
      if (hits[file, k] > 0) ++ran[file]
      else missed[++misses] = file SUBSEP k
    }
    if (lines[file] == 0) continue  # a header of declarations
    row(name_of(file), ran[file], lines[file])
    folder = name_of(file)
    sub(/\/[^\/]*$/, "", folder)
    if (folder != folders[groups]) folders[++groups] = folder
    folder_ran[folder] += ran[file]
    folder_lines[folder] += lines[file]
    total_ran += ran[file]
    total_lines += lines[file]
  }
  print ""
  for (i = 1; i <= groups; ++i) row(folders[i], folder_ran[folders[i]], folder_lines[folders[i]])
  row("all", total_ran, total_lines)
  printf "\n%d lines that no test ran\n", misses
  for (i = 1; i <= misses; ++i) {
    split(missed[i], part, SUBSEP)
    for (k = 1; k <= part[2]; ++k) if ((getline text < part[1]) <= 0) text = ""
    close(part[1])
    sub(/^ */, "", text)
    printf "  %s:%d: %s\n", name_of(part[1]), part[2], text
  }
  if (percent(total_ran, total_lines) < least) { printf "FAILED: fewer than %g %% of the lines ran\n", least; exit 1 }
}
