# Prints what became of each mutant, those that need a look last, and the score.
BEGIN { FS = "\037" }
{
  verdict = "broken: no verdict"
  getline verdict < (jobs "/" $1 "/verdict")
  lost = verdict == "survived"
  what = $1 " " verdict "\n  - " $3 "\n  + " $4
  total++
  if (verdict ~ /^killed/) killed++
  if (lost && $6 != "") same++
  if (verdict ~ /^broken/) wrong = wrong "\nNOT RIGHT " what
  else if (lost && $6 == "") { survived++; wrong = wrong "\nNOT RIGHT " what }
  else if (!lost && $6 != "") wrong = wrong "\nNOT RIGHT " what "\n  said to be the same: " $6
  else if (lost) print $1 " the same: " $6
  else print $1 " " verdict
}
END {
  if (wrong != "") print wrong
  score = total > same ? 100 * killed / (total - same) : 100
  printf "%d mutants: %d killed, %d the same as the source, %d survived; score %.1f %%\n", total, killed, same, survived, score
}
