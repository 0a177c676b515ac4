// Who owns what, and for how long.
#include <cstdlib>
#include <cstring>

#include "array.h"

namespace standin {

namespace {

Frame workspace;
Frame persistent;
Frame* current = &workspace;

std::size_t liveArrays = 0;
std::size_t liveBlocks = 0;
long failing = 0;
long counted = 0;
std::size_t memoryLimit = std::size_t{1} << 32;
int depth = 0;

void reclaim(Frame& frame) {
  while (!frame.arrays.empty()) destroy(*frame.arrays.begin());
  for (void* block : frame.blocks) {
    std::free(block);
    --liveBlocks;
  }
  frame.blocks.clear();
}

Frame* ownerOf(void* block) {
  for (Frame* f = current; f; f = f->outer) {
    if (f->blocks.count(block)) return f;
  }
  return persistent.blocks.count(block) ? &persistent : nullptr;
}

void* newBlock(std::size_t n, std::size_t size, bool clear) {
  takeAllocation(n, size);
  const Busy busy;
  const std::size_t bytes = n * size;
  void* block = clear ? std::calloc(bytes > 0 ? bytes : 1, 1) : std::malloc(bytes > 0 ? bytes : 1);
  if (!block) std::abort();
  current->blocks.insert(block);
  ++liveBlocks;
  return block;
}

}  // namespace

Busy::Busy() { ++depth; }
Busy::~Busy() { --depth; }
bool moduleAtWork() { return current->module && depth == 0; }

Frame& currentFrame() { return *current; }
Frame& persistentFrame() { return persistent; }

void enterFrame(Frame& frame) {
  frame.outer = current;
  current = &frame;
}

void leaveFrame(Frame& frame) {
  if (current != &frame) misuse("frames are not left in order");
  reclaim(frame);
  current = frame.outer;
}

void moveTo(Frame& frame, mxArray* a) {
  if (!a->frame) misuse("an element of another array is moved");
  a->frame->arrays.erase(a);
  frame.arrays.insert(a);
  a->frame = &frame;
}

void adopt(mxArray* a) {
  if (!a) return;
  if (!a->frame) misuse("an array becomes the element of two others");
  a->frame->arrays.erase(a);
  a->frame = nullptr;
}

mxArray* newArray(mxClassID id, mwSize ndim, const mwSize* dims) {
  std::size_t n = 1;
  bool tooMany = false;
  for (mwSize k = 0; k < ndim; ++k) tooMany = tooMany || __builtin_mul_overflow(n, dims[k], &n);
  const std::size_t size = elementSize(id);
  takeAllocation(tooMany ? SIZE_MAX : n, size);
  const Busy busy;
  auto* a = new mxArray;
  a->id = id;
  a->dims.assign(dims, dims + ndim);
  while (a->dims.size() < 2) a->dims.push_back(1);
  while (a->dims.size() > 2 && a->dims.back() == 1) a->dims.pop_back();
  a->frame = current;
  current->arrays.insert(a);
  ++liveArrays;
  return a;
}

void destroy(mxArray* a) {
  const Busy busy;
  if (a->frame) a->frame->arrays.erase(a);
  for (mxArray* element : a->elements) {
    if (element) destroy(element);
  }
  delete a;
  --liveArrays;
}

void takeAllocation(std::size_t count, std::size_t size) {
  const bool tooLarge = size > 0 && count > memoryLimit / size;
  const bool turn = current->module && ++counted == failing;
  if (tooLarge || turn) endCall("MATLAB:nomem", "Out of memory.");
}

Data newData(std::size_t bytes) {
  if (bytes == 0) return {};
  void* data = std::calloc(bytes, 1);
  if (!data) std::abort();
  return Data(data, std::free);
}

Data copyData(const Data& data, std::size_t bytes) {
  Data copy = data ? newData(bytes) : Data{};
  if (copy) std::memcpy(copy.get(), data.get(), bytes);
  return copy;
}

Live live() { return {liveArrays, liveBlocks, persistent.arrays.size(), persistent.blocks.size()}; }

void clearWorkspace() { reclaim(workspace); }
void clearPersistent() { reclaim(persistent); }

void failAllocation(long k) {
  failing = k;
  counted = 0;
}

long allocations() { return counted; }

void setMemoryLimit(std::size_t bytes) { memoryLimit = bytes; }

}  // namespace standin

using namespace standin;

void* mxCalloc(std::size_t n, std::size_t size) { return newBlock(n, size, true); }

void* mxMalloc(std::size_t n) { return newBlock(n, 1, false); }

void mxFree(void* ptr) {
  if (!ptr) return;
  const Busy busy;
  Frame* owner = ownerOf(ptr);
  if (!owner) misuse("mxFree of what is not a block of memory");
  owner->blocks.erase(ptr);
  std::free(ptr);
  --liveBlocks;
}

void mxDestroyArray(mxArray* a) {
  if (!a) return;
  if (!a->frame) misuse("mxDestroyArray of an element of another array");
  if (a->frame != current && a->frame != &persistent) misuse("mxDestroyArray of an array that belongs to the caller");
  destroy(a);
}

void mexMakeArrayPersistent(mxArray* a) {
  deref(a, "mexMakeArrayPersistent");
  const Busy busy;
  moveTo(persistent, a);
}

void mexMakeMemoryPersistent(void* ptr) {
  if (!ptr) return;
  const Busy busy;
  Frame* owner = ownerOf(ptr);
  if (!owner) misuse("mexMakeMemoryPersistent of what is not a block of memory");
  owner->blocks.erase(ptr);
  persistent.blocks.insert(ptr);
}
