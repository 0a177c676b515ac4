#include <algorithm>

#include "nonlinear/nl_inout.h"
#include "numbers/ranges.h"

namespace quarn {

void storeForces(const chandleNl_inout& h, const ROr& ro) {
  if (h.ioptLen < 1 || !ro.FNL || h.iopt[0] < 0) return;
  const auto have = static_cast<long long>(h.snlTotal);
  storeClipped(ro.FNL, ro.fnlLen, h.iopt[0], h.snl, have >= 0 && have < h.unlLen ? have : h.unlLen);
}

namespace {

/// What "iopt" says about the states: block k holds unl[begin(k)], ..., unl[begin(k) + length - 1] and goes to u[place] and following.
/// In 64 bits no count overflows.
struct Blocks {
  Blocks(const chandleNl_inout& h, const ROr& ro)
      : place(h.iopt[1]),
        skip(h.iopt[2]),
        length(h.iopt[3]),
        advance(skip + length),
        last(h.iopt[4] - 1LL),
        have(static_cast<long long>(std::min<std::size_t>(h.unlTotal, most))),
        room(std::min(length, static_cast<long long>(std::min<std::size_t>(ro.uLen, most)) - place)) {}

  long long begin(long long k) const { return skip + k * advance; }
  /// Number of the last block that begins at that place of unl or before it; -1 where none does.
  long long lastFrom(long long begin) const { return begin < skip ? -1 : std::min(last, (begin - skip) / advance); }

  static constexpr long long most = 1LL << 60;
  long long place;
  long long skip;
  long long length;
  long long advance;
  long long last;
  long long have;  ///< values of unl
  long long room;  ///< values that go into u from place on, at most length
};

/// All blocks that copy something, in their order: there is nothing to copy before unl or after it. Their number is bounded by the values
/// of unl and u, whatever the counts say.
void copyBlocks(const Blocks& b, const double* unl, const ROr& ro) {
  long long k = b.skip < 0 ? b.lastFrom(-b.room) + 1 : 0;
  for (; k <= b.last && b.begin(k) < b.have; ++k) {
    const long long ahead = std::max(0LL, -b.begin(k));
    const long long from = b.begin(k) + ahead;
    const long long n = std::min(b.length - ahead, b.have - from);
    if (n > 0) storeClipped(ro.u, ro.uLen, b.place + ahead, unl + from, n);
  }
}

/// The same where blocks overlap and u shares no memory with unl: each place gets the value of the last block that has one for it.
void copyLast(const Blocks& b, const double* unl, double* u) {
  for (long long j = 0; j < b.room; ++j) {
    const long long k = b.lastFrom(b.have - 1 - j);
    if (k >= 0 && b.begin(k) + j >= 0) u[b.place + j] = unl[b.begin(k) + j];
  }
}

}  // namespace

void StoreState(chandleNl_inout* h, ROr ro) {
  storeForces(*h, ro);
  if (h->ioptLen < 5 || h->iopt[1] <= 0 || !ro.u || !h->unl) return;
  const Blocks b(*h, ro);
  if (b.advance <= 0 || b.room <= 0 || b.last < 0) return;  // a skip back by a block or more puts all of them before unl
  if (b.skip >= 0 || overlap(ro.u, ro.uLen, h->unl, h->unlTotal)) {
    copyBlocks(b, h->unl, ro);
  } else {
    copyLast(b, h->unl, ro.u);
  }
}

}  // namespace quarn
