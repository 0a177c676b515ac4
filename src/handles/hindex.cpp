#include "handles/hindex.h"

namespace quarn {

hindex cIndex;

void hindex::destroy(chandle* h) {
  if (!h) return;
  h->~chandle();
  mxFree(h);
}

void hindex::free_index(int i) {
  if (i == -1) {
    for (auto& entry : entries) {
      destroy(entry.second);
      entry.second = nullptr;
    }
    return;
  }
  destroy(getStack(i));
  entries.erase(i);
  // counter is the index to be issued next, so freeing the one issued last does not lower it.
  if (counter == i) counter = i - 1;
}

void emptyStack() {
  mexPrintf("Emptying quarn stack\n");
  cIndex.free_index(-1);
}

}  // namespace quarn
