# Prints a file with its line ENVIRON["old"] replaced by ENVIRON["new"]; blanks in front of a line do not count. Fails unless it stands there once.
{
  line = $0
  sub(/^ +/, "", line)
  if (line == ENVIRON["old"]) {
    found++
    print substr($0, 1, length($0) - length(line)) ENVIRON["new"]
  } else {
    print
  }
}
END { exit found == 1 ? 0 : 1 }
