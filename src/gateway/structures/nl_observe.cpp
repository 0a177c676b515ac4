#include "gateway/structures/nl_observe.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

#include "host/errors.h"
#include "sparse/mt_products.h"

namespace quarn {

namespace {

/// "vnl" or "unl" of an element.
struct Buffer {
  host::Doubles data;
  std::size_t n = 0;    ///< values of a page, or of the whole buffer if it has two dimensions
  bool paged = false;   ///< three dimensions or more
  host::Doubles start;  ///< initial content of a 2-D buffer
  SparseView c;         ///< what fills it, checked against it

  double* page(int k) const { return data.data + static_cast<std::size_t>(k - 1) * n; }
};

Buffer readBuffer(const NlElement& e, const char* name, const char* startName) {
  Buffer b;
  b.data = e.writable(name);
  if (!b.data) return b;
  const mxArray* a = e.field(name);
  b.paged = mxGetNumberOfDimensions(a) > 2;
  b.n = b.data.count;
  if (b.paged) {
    const mwSize* extents = mxGetDimensions(a);
    const auto values = static_cast<std::int64_t>(extents[0]) * static_cast<std::int64_t>(extents[1]);
    b.n = static_cast<std::size_t>(std::max(0, static_cast<std::int32_t>(values)));
    return b;
  }
  b.start = e.doubles(startName);
  if (b.start && b.start.count < b.n) {
    host::refuse("NL{%d,3}.%s must hold as many values as \"%s\" (%zu), got %zu", e.row + 1, startName, name, b.n, b.start.count);
  }
  return b;
}

/// Factor whose sign says whether the first page is kept in the third.
double switchingFactor(const NlCall& call, const NlElement& e, const Buffer& vnl) {
  if (!vnl.data || !vnl.paged || e.pages() <= 2) return 1.0;
  const host::Doubles opt = e.doubles("opt");
  if (opt.count < 2) return 1.0;
  const mxArray* tc = call.nrhs > 6 ? host::field(call.prhs[6], "tc") : nullptr;
  return host::count(tc) > 0 ? opt.data[1] - host::number(tc, "opt.tc") : opt.data[1];
}

void checkBuffer(const NlElement& e, Buffer& b, bool keep, host::Doubles state, const char* name) {
  if (!b.data) return;
  if (b.paged) {
    const long long pages = e.pages();
    const std::size_t used = pages > 2 && keep ? 3 : pages > 1 ? 2 : 1;
    if (b.data.count < used * b.n) {
      host::refuse("NL{%d,3}.%s must hold %zu pages of %zu values for an element structure of %lld pages, got %zu values", e.row + 1, name,
                   used, b.n, pages, b.data.count);
    }
  }
  const mxArray* c = e.needed("c");
  if (mxIsSparse(c)) return;
  b.c = sparseView(c, "the element's c");
  checkProd(b.c, state.count, b.data.count, "the element's c");
}

void refresh(const NlElement& e, const Buffer& b, bool keep, host::Doubles state) {
  if (!b.data) return;
  const std::size_t bytes = b.n * sizeof(double);
  const double* source = b.start.data;
  if (b.paged) {
    const long long pages = e.pages();
    if (pages > 2 && keep) std::memcpy(b.page(3), b.page(1), bytes);
    source = pages > 1 ? b.page(2) : nullptr;
  }
  if (source) {
    std::memmove(b.data.data, source, bytes);
  } else {
    std::fill_n(b.data.data, b.n, 0.0);
  }
  if (!b.c.pr) {  // none, or of the host's own kind, which is an error
    Prod_Mt_u(e.needed("c"), state, b.data, "the element's c");
    return;
  }
  const int dims[3] = {b.c.rows, b.c.cols, b.c.trans};
  Prod_Mt_ub(dims, b.c.ir, b.c.jc, b.c.pr, state.data, b.data.data);
}

struct Buffers {
  Buffer vnl;
  Buffer unl;
  bool keep;
};

Buffers readBuffers(const NlCall& call, const NlElement& e) {
  Buffers b{readBuffer(e, "vnl", "vnl0"), readBuffer(e, "unl", "unl0"), false};
  b.keep = switchingFactor(call, e, b.vnl) < 0.0;
  checkBuffer(e, b.vnl, b.keep, {call.ctx.v, call.ctx.vLen}, "vnl");
  checkBuffer(e, b.unl, b.keep, {call.ctx.u, call.ctx.uLen}, "unl");
  return b;
}

}  // namespace

void checkObservation(const NlCall& call, const NlElement& e) { readBuffers(call, e); }

void observe(const NlCall& call, const NlElement& e) {
  const Buffers b = readBuffers(call, e);
  refresh(e, b.vnl, b.keep, {call.ctx.v, call.ctx.vLen});
  refresh(e, b.unl, b.keep, {call.ctx.u, call.ctx.uLen});
}

}  // namespace quarn
