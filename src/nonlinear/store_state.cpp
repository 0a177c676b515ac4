#include "host/arrays.h"
#include "nonlinear/nl_inout.h"

namespace quarn {

void storeForces(const chandleNl_inout& h, const ROr& ro) {
  if (h.ioptLen < 1 || !ro.FNL || h.iopt[0] < 0) return;
  const auto have = static_cast<long long>(h.snlTotal);
  host::storeClipped(ro.FNL, ro.fnlLen, h.iopt[0], h.snl, have >= 0 && have < h.unlLen ? have : h.unlLen);
}

void StoreState(chandleNl_inout* h, ROr ro) {
  storeForces(*h, ro);
  if (h->ioptLen < 5 || h->iopt[1] <= 0) return;
  const long long skip = h->iopt[2];
  const long long length = h->iopt[3];
  const int blocks = h->iopt[4];
  const auto total = static_cast<unsigned long long>(h->unlTotal);
  long long cursor = 0;
  for (int k = 0; k < blocks; ++k) {
    cursor += skip;
    // What lies in front of unl or behind it is not there to be copied.
    const long long ahead = cursor < 0 ? -cursor : 0;
    long long n = length - ahead;
    if (cursor + ahead < 0 || static_cast<unsigned long long>(cursor + ahead) >= total) n = 0;
    if (n > 0 && static_cast<unsigned long long>(cursor + ahead + n) > total) n = static_cast<long long>(total) - (cursor + ahead);
    host::storeClipped(ro.u, ro.uLen, h->iopt[1] + ahead, h->unl + cursor + ahead, n);
    cursor += length;
  }
}

}  // namespace quarn
