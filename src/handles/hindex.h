// The registry of handles.
#pragma once

#include <cstdint>
#include <map>
#include <vector>

#include "base/chandle.h"

namespace quarn {

/// Maps integer indices to handles, in ascending order. A key may map to null. Lives from load to unload of the module; at unload
/// its nodes are released, the handles that are still registered are not.
class hindex {
 public:
  /// The next index to issue: 0, 1, 2, ...
  int get_free_index() { return counter++; }
  /// The handle at key i. An unknown key is inserted with null, and is listed from then on.
  chandle* getStack(int i) { return entries[i]; }
  /// Stores h at key i. A handle that was there is overwritten, not destroyed.
  void setStack(int i, chandle* h) { entries[i] = h; }
  /// -1: destroys every handle; the keys stay, with null, and counter goes on. Other keys: destroys the handle, if there is one, and erases
  /// the key. When i is the index to be issued next, counter becomes i - 1.
  /// Within a function of the user's that a command waits for, handles leave the registry but live on until destroyRetired: that
  /// command may be at work with them.
  void free_index(int i);
  /// Destroys handles that were freed while a command waited for the user's functions. Called at every entry of the module; does nothing
  /// while one still waits.
  void destroyRetired();

  const std::map<std::int32_t, chandle*>& all() const { return entries; }
  /// How many handles have left the registry since the module was loaded.
  std::uint64_t released() const { return left; }

 private:
  static void destroy(chandle* h);
  void release(chandle* h);

  std::int32_t counter = 0;
  std::uint64_t left = 0;
  std::map<std::int32_t, chandle*> entries;
  std::vector<chandle*> retired;
};

extern hindex cIndex;

}  // namespace quarn
