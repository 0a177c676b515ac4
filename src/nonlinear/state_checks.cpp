#include "host/errors.h"
#include "nonlinear/laws.h"
#include "nonlinear/state_laws.h"

namespace quarn {

namespace {

void refuseOneArray(const chandleNl_inout& h, const char* law) {
  if (h.unl && h.unl == h.vnl) host::refuse("\"unl\" and \"vnl\" are one array: law \"%s\" needs each with its own zeros (...)", law);
}

}  // namespace

void requireRates(const chandleNl_inout& h, const char* law) {
  requireValues(law, "vnl", h.vnlTotal, h.unlLen);
  refuseOneArray(h, law);
}

void requireParameters(const chandleNl_inout& h, const char* law, int n) {
  if (h.optLen < n) host::refuse("\"opt\" of law \"%s\" must hold %d values or more, got %d", law, n, h.optLen);
  refuseOneArray(h, law);
  const int needed = h.ioptLen > 1 && h.iopt[1] <= 0 ? 2 : 5;
  if (h.ioptLen < needed) host::refuse("\"iopt\" of law \"%s\" must hold %d values or more, got %d", law, needed, h.ioptLen);
}

void requireValues(const char* law, const char* name, std::size_t have, long long need) {
  if (need > 0 && have < static_cast<unsigned long long>(need)) {
    host::refuse("\"%s\" of law \"%s\" must hold %lld values or more, got %zu", name, law, need, have);
  }
}

}  // namespace quarn
