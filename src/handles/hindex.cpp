#include "handles/hindex.h"

#include <utility>

#include "base/handle_walk.h"
#include "host/user_code.h"

namespace quarn {

hindex cIndex;

void hindex::destroy(chandle* h) {
  if (!h) return;
  h->chandle::~chandle();
  mxFree(h);
}

void hindex::release(chandle* h) {
  if (h) ++left;
  if (h && h->inUse) ++disturbedUses;
  if (h && host::insideUserCode()) {
    retired.push_back(h);
  } else {
    destroy(h);
  }
}

void hindex::destroyRetired() {
  if (host::insideUserCode()) return;
  while (!retired.empty()) {
    chandle* h = retired.back();
    retired.pop_back();
    destroy(h);
  }
}

// A handle leaves the map before it is destroyed: what its value's clean-up calls finds the map in order.
void hindex::free_index(int i) {
  if (i == -1) {
    if (entries.empty()) return;
    const std::int32_t last = entries.rbegin()->first;
    for (auto entry = entries.begin(); entry != entries.end() && entry->first <= last;) {
      const std::int32_t key = entry->first;
      release(std::exchange(entry->second, nullptr));
      entry = entries.upper_bound(key);
    }
    return;
  }
  chandle* h = getStack(i);
  entries.erase(i);
  // counter is the index to be issued next, so freeing the one issued last does not lower it.
  if (counter == i) counter = i - 1;
  release(h);
}

}  // namespace quarn
