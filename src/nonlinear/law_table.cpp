#include "nonlinear/laws.h"
#include "nonlinear/shaft_laws.h"
#include "nonlinear/state_laws.h"
#include "nonlinear/user_law.h"
#include "numbers/convert.h"

namespace quarn {

namespace {

/// First character in the lowest byte: the sum of character(k) * 256^(k-1), as the double in "opt" holds it. Of seven characters it is
/// rounded.
constexpr std::int64_t codeOf(const char* keyword) {
  std::int64_t code = 0;
  int shift = 0;
  for (const char* c = keyword; *c; ++c, shift += 8) code |= static_cast<std::int64_t>(static_cast<unsigned char>(*c)) << shift;
  return static_cast<std::int64_t>(static_cast<double>(code));
}

constexpr LawRow row(const char* keyword, NlForceLaw law, NlLawCheck check, bool needsPages = false) {
  return {keyword, codeOf(keyword), law, check, needsPages};
}

/// In the order of every list of laws that is read.
constexpr LawRow laws[] = {
    // without states
    row("Power", FuPower, checkPower),
    row("Expon", FuExpon, checkExpon),
    row("Table", FuTable, checkTable),
    row("Damper", FuDamper, checkDamper),
    row("Contact", FuContact, checkContact),
    row("Surface", FuSurface, checkSurface),
    // with states
    row("Maxw", Maxw, checkMaxw),
    row("DahlC", FuDahlC, checkDahlC, true),
    row("sts", STS, checkSts),
    row("BoucWen", FuBoucWen, checkBoucWen),
    row("Clima2", Clima2, checkClima2, true),
    // of a shaft in two directions
    row("Radial", FuRadial, checkRadial),
    row("Journal", FuJournal, checkJournal),
    // of the user's own
    row("User", FuUser, checkUser),
};

static_assert(codeOf("Power") == 491328597840 && codeOf("Clima2") == 55394028842051 && codeOf("sts") == 7566451);

}  // namespace

const LawRow* findLaw(double opt0) {
  const std::int64_t code = toInt64(opt0);
  for (const LawRow& candidate : laws) {
    if (candidate.code == code) return &candidate;
  }
  return nullptr;
}

}  // namespace quarn
