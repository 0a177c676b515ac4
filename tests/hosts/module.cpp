// Loading and unloading of a module file.
#include <dlfcn.h>

#include "array.h"

namespace standin {

void Module::load() {
  library = dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL);
  if (!library) misuse("%s", dlerror());
  entry = reinterpret_cast<Entry>(dlsym(library, "mexFunction"));
  if (!entry) misuse("%s has no mexFunction", file.c_str());
}

Result Module::operator()(int nlhs, const Arguments& args) {
  if (!library) load();
  Result result = call(entry, nlhs, args);
  if (auto* registered = takeExitFunction()) exitFunction = registered;
  return result;
}

void Module::clear() {
  if (!library) return;
  if (exitFunction) exitFunction();
  exitFunction = nullptr;
  dlclose(library);
  library = nullptr;
  if (void* still = dlopen(file.c_str(), RTLD_NOLOAD | RTLD_NOW)) misuse("%s stays in memory (%p)", file.c_str(), still);
}

}  // namespace standin
