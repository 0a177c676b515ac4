#include <algorithm>
#include <climits>

#include "nonlinear/nl_inout.h"
#include "numbers/ranges.h"

namespace quarn {

void storeForces(const chandleNl_inout& h, const ROr& ro) {
  if (h.ioptLen < 1 || !ro.FNL || h.iopt[0] < 0) return;
  const auto have = static_cast<long long>(h.snlTotal);
  storeClipped(ro.FNL, ro.fnlLen, h.iopt[0], h.snl, have >= 0 && have < h.unlLen ? have : h.unlLen);
}

void StoreState(chandleNl_inout* h, ROr ro) {
  storeForces(*h, ro);
  if (h->ioptLen < 5 || h->iopt[1] <= 0) return;
  const long long skip = h->iopt[2];
  const long long length = h->iopt[3];
  const int blocks = h->iopt[4];
  const auto total = static_cast<long long>(std::min<std::size_t>(h->unlTotal, LLONG_MAX));
  if (length <= 0) return;
  const long long advance = skip + length;
  long long cursor = 0;
  for (int k = 0; k < blocks; ++k) {
    cursor += skip;
    // Once the cursor has left unl for good, or has copied the same block so often that nothing changes any more, the rest is idle.
    if ((advance > 0 && cursor >= total) || (advance < 0 && cursor + length <= 0) || (advance == 0 && k > total)) return;
    // What lies in front of unl or behind it is not there to be copied.
    const long long ahead = cursor < 0 ? -cursor : 0;
    const long long from = cursor + ahead;
    const long long n = std::min(length - ahead, total - from);
    if (n > 0) storeClipped(ro.u, ro.uLen, h->iopt[1] + ahead, h->unl + from, n);
    cursor += length;
  }
}

}  // namespace quarn
