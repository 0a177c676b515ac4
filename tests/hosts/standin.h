// Control of the stand-in host: what a test, a driver or a fuzzer does in MATLAB's place.
//
// The stand-in keeps MATLAB's documented rules: mxDuplicateArray copies deep, empty arrays have no data (null), unset cells and
// fields are null, mxGetProperty gives a copy, errors do not return, and what a call has allocated is reclaimed at its end unless
// it was returned or made persistent. What MATLAB answers with a crash (a null array, an accessor on the wrong class, an index
// outside, a block freed twice) ends the process with a message.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "include/mex.h"

#pragma GCC visibility push(default)
namespace standin {

// Errors --------------------------------------------------------------------------------------------------------------------

/// How an error of the host leaves a module: by unwinding the stack, or by a long jump that runs no destructor.
enum class Errors { unwind, jump };
void setErrors(Errors mode);

/// An error raised by a function of the host's language.
struct Error {
  std::string identifier;
  std::string text;
};
/// For functions registered below.
[[noreturn]] void raise(std::string identifier, std::string text);

/// What mexPrintf printed since the last call of this function.
std::string printed();

// Calls ---------------------------------------------------------------------------------------------------------------------

using Entry = void (*)(int, mxArray**, int, const mxArray**);
using Arguments = std::vector<const mxArray*>;

struct Result {
  bool failed = false;
  std::string identifier;
  std::string text;
  std::vector<mxArray*> out;        ///< as many as were asked for, one at least; null where nothing was stored
  std::size_t reclaimedArrays = 0;  ///< what the call had left behind
  std::size_t reclaimedBlocks = 0;
};

/// One call of a module's entry with as many result places as MATLAB provides. Outputs belong to the caller's workspace.
Result call(Entry entry, int nlhs, const Arguments& args);

/// A function of the host's language. Arguments are borrowed; the results are what it creates, or its own arguments. A missing
/// result stays null.
using Function = std::function<std::vector<mxArray*>(int nlhs, const Arguments& args)>;
void define(const std::string& name, Function function);
void undefineAll();

// Modules -------------------------------------------------------------------------------------------------------------------

/// A module loaded from a file, as MATLAB loads it.
class Module {
 public:
  explicit Module(std::string path) : file(std::move(path)) {}
  ~Module() { clear(); }
  Module(const Module&) = delete;
  Module& operator=(const Module&) = delete;

  /// Loads the module if it is not loaded, and calls it.
  Result operator()(int nlhs, const Arguments& args);
  /// Runs its exit function and unloads it. Ends the process if the module stays in memory.
  void clear();
  bool loaded() const { return library != nullptr; }

 private:
  void load();
  std::string file;
  void* library = nullptr;
  Entry entry = nullptr;
  void (*exitFunction)() = nullptr;
};

/// The function that the module called last has registered with mexAtExit, null if it has none; forgets it.
void (*takeExitFunction())();

// Arrays that the interface has no function for -----------------------------------------------------------------------------

/// A second array on the same data, as after an assignment in the host's language.
mxArray* share(const mxArray* a);
/// An object with properties: of a class defined by classdef (properties are copied out), or of an old-style class (fields are
/// the object's own). Takes the values. An array of n objects has them in its first element.
using Properties = std::vector<std::pair<std::string, mxArray*>>;
mxArray* object(const std::string& className, const Properties& properties, mwSize n = 1);
mxArray* oldObject(const std::string& className, const Properties& fields);
mxArray* functionHandle(Function function);

// Memory --------------------------------------------------------------------------------------------------------------------

struct Live {
  std::size_t arrays;            ///< all arrays, elements of others included
  std::size_t blocks;            ///< memory of mxCalloc and its like
  std::size_t persistentArrays;  ///< arrays made persistent, elements not included
  std::size_t persistentBlocks;
};
Live live();

/// Destroys all arrays of the workspace, outside calls.
void clearWorkspace();
/// Destroys what modules have made persistent, as the host's end would.
void clearPersistent();

/// Lets the k-th allocation (1, 2, ...) of modules fail from now on: it ends the call with MATLAB's "Out of memory.". 0: none.
/// What functions of the host's language allocate is not counted.
void failAllocation(long k);
/// Allocations of modules since the last failAllocation.
long allocations();
/// Largest array that can be had, in bytes; what is larger is "Out of memory.".
void setMemoryLimit(std::size_t bytes);
/// Whether code of a module is running, as opposed to the host's own.
bool moduleAtWork();

}  // namespace standin
#pragma GCC visibility pop
