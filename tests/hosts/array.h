// What an array is inside the stand-in host.
#pragma once

#include <csetjmp>
#include <memory>
#include <string>
#include <unordered_set>
#include <vector>

#include "standin.h"

namespace standin {

struct Frame;

/// Memory of exactly the size asked for, so that a sanitizer sees a step beyond it. Null for no bytes.
using Data = std::shared_ptr<void>;
Data newData(std::size_t bytes);
Data copyData(const Data& data, std::size_t bytes);

enum class Kind { plain, object, oldObject, functionHandle };

}  // namespace standin

struct mxArray_tag {
  mxClassID id = mxDOUBLE_CLASS;
  standin::Kind kind = standin::Kind::plain;
  bool sparse = false;
  bool complex = false;
  std::string className;  ///< of objects
  std::vector<mwSize> dims;
  mwSize nzmax = 0;
  standin::Data re, im, ir, jc;
  std::vector<std::string> names;  ///< fields or properties
  std::vector<mxArray*> elements;  ///< of a cell; of a struct or object element by element, names.size() each
  standin::Function function;
  standin::Frame* frame = nullptr;  ///< who reclaims it; null for an element of another array

  std::size_t count() const;
  int nameIndex(const char* name) const;
};

namespace standin {

/// What one call, one function of the host's language, the workspace or the persistent store owns.
struct Frame {
  bool module = false;  ///< code of a module is running, its allocations count
  Frame* outer = nullptr;
  std::unordered_set<mxArray*> arrays;
  std::unordered_set<void*> blocks;
  std::jmp_buf back;
};

Frame& currentFrame();
Frame& persistentFrame();
void enterFrame(Frame& frame);
/// Leaves the innermost frame and destroys what it still owns.
void leaveFrame(Frame& frame);
void moveTo(Frame& frame, mxArray* a);
/// Makes a the element of another array.
void adopt(mxArray* a);
void destroy(mxArray* a);

/// An array of the current frame; counted, can fail.
mxArray* newArray(mxClassID id, mwSize ndim, const mwSize* dims);
std::size_t elementSize(mxClassID id);
/// Ends the call in the mode that was set.
[[noreturn]] void endCall(const char* identifier, const char* text);
/// Raises "Out of memory." if bytes are more than the host has, or if it is this allocation's turn to fail.
void takeAllocation(std::size_t count, std::size_t size);
/// The last error that ended a call.
Error takeError();
void setError(Error error);

/// Ends the process: what MATLAB would crash on.
[[noreturn]] [[gnu::format(printf, 1, 2)]] void misuse(const char* format, ...);
/// Refuses null.
const mxArray& deref(const mxArray* a, const char* function);

/// Marks the host as being at work.
struct Busy {
  Busy();
  ~Busy();
};

}  // namespace standin
