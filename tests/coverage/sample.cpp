// Error calls that a run reaches and others that it does not, in the ways in which the module writes them. tests/coverage/check runs it.
#include "sample.h"

#include <cstdlib>
#include <initializer_list>

namespace {

int ends(void (*code)(int), int k) {
  try {
    code(k);
  } catch (int) {
    return 1;
  }
  return 0;
}

void oneLine(int k) {
  if (k > 0) host::fail("reached");
  if (host::describe(k) < 0) host::refuse("missed %d", host::describe(k));
  if (k == 0 && std::abs(k) > 0) host::fail("missed behind a condition that was looked at");
}

void severalLines(int k) {
  if (k > 0) {
    host::refuse("reached with values that stand on a second line, since this one is as long as a line may be : %d %d", host::describe(k),
                 host::describe(k + 1));
  }
  if (k < 0) {
    host::refuse("missed with values that stand on a second line, since this one is as long as a line may be : %d %d", host::describe(k),
                 host::describe(k + 1));
  }
}

void atTheEnd(int k) {
  if (k < 0) return;
  host::fail("reached");
}

void neverCalled(int /*k*/) { host::fail("missed"); }

}  // namespace

int main(int argc, char** /*argv*/) {
  int ended = argc > 5 ? ends(neverCalled, 0) : 0;
  for (const int k : {1, 0}) ended += ends(oneLine, k) + ends(severalLines, k) + ends(atTheEnd, k);
  return ended == 4 ? 0 : 1;
}
