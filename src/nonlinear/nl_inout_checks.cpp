// What an element would read or write outside its arrays, the state or the residual is refused here, before it runs.
#include <algorithm>
#include <iterator>

#include "host/errors.h"
#include "nonlinear/nl_inout.h"
#include "nonlinear/user_law.h"
#include "numbers/ranges.h"
#include "sparse/line_checks.h"
#include "sparse/mt_products.h"

namespace quarn {

void chandleNl_inout::checkSizes(const ROr& ro, std::size_t rLen) {
  checkViews(ro, rLen);
  check(*this, ro);
}

void chandleNl_inout::checkViews(const ROr& ro, std::size_t rLen) {
  for (const double* buffer : {unl, vnl}) {
    if (buffer && (buffer == ro.u || buffer == ro.v || buffer == ro.a)) {
      host::refuse("\"%s\" and u, v or a are one array: the observation would overwrite the state", buffer == unl ? "unl" : "vnl");
    }
  }
  if (vnl && unlLen > 0) checkLength(vnlTotal, unlLen, "vnl", "as many as a page of unl");
  if (c.pr && (vnl || unl)) checkObservation(ro);
  if (b.pr && snl) checkCommand(rLen);
  // What had no buffer to work on was not looked at: an object may show its buffer later.
  verified = (!c.pr || vnl || unl) && (!b.pr || snl);
  pagesApart = true;
  for (const double* page : {unl, vnl}) {
    const auto length = static_cast<std::size_t>(std::max(unlLen, 0));
    if (overlap(page, length, ro.u, ro.uLen) || overlap(page, length, ro.v, ro.vLen)) pagesApart = false;
  }
  cApart = true;
  optApart = true;
  for (const host::Doubles& written : {host::Doubles{unl, unlTotal},
                                       {vnl, vnlTotal},
                                       {snl, snlTotal},
                                       {ro.u, ro.uLen},
                                       {ro.v, ro.vLen},
                                       {ro.a, ro.aLen},
                                       {ro.FNL, ro.fnlLen}}) {
    if (overlap(c.pr, c.prLen, written.data, written.count)) cApart = false;
    if (overlap(opt, static_cast<std::size_t>(optLen), written.data, written.count)) optApart = false;
  }
}

/// A law of the user's may end the call, or run code that looks at any array.
bool chandleNl_inout::keepsToItself(const Range* ranges, int count) const {
  if (law == FuUser) return false;
  const Range own[] = {{unl, unlTotal}, {vnl, vnlTotal}, {snl, snlTotal},
                       {c.pr, c.prLen}, {b.pr, b.prLen}, {opt, static_cast<std::size_t>(optLen)}};
  return std::all_of(std::begin(own), std::end(own), [&](const Range& x) { return apartFrom(ranges, count, x.data, x.count); });
}

void chandleNl_inout::checkObservation(const ROr& ro) {
  if (!c.sparse()) {
    if (vnl) checkProd(c, ro.vLen, vnlTotal, "c");
    if (unl) checkProd(c, ro.uLen, unlTotal, "c");
    return;
  }
  checkProdForm(c);
  if (!verified) {
    checkLinePointers(c, c.rows, "c");
    cLargest = largestIndex(c, c.rows, "c");
  }
  if (vnl) {
    checkGather(cLargest, ro.vLen, "c", "v");
    checkLength(vnlTotal, c.rows, "vnl", "one for each row of c");
  }
  if (unl) {
    checkGather(cLargest, ro.uLen, "c", "u");
    checkLength(unlTotal, c.rows, "unl", "one for each row of c");
  }
}

void chandleNl_inout::checkCommand(std::size_t rLen) {
  if (!b.sparse()) {
    checkAddForm(b);
    checkAdd(b, snlTotal, rLen, "b");
    return;
  }
  if (!verified) {
    checkLinePointers(b, b.rows, "b");
    bLargest = largestIndex(b, b.rows, "b");
  }
  if (b.trans == 1) {
    checkLength(snlTotal, b.rows, "snl", "one for each line of b");
    checkGather(bLargest, static_cast<std::size_t>(std::max(b.cols, 0)), "b", "its own columns");
    checkLength(rLen, b.cols, "the residual", "one for each column of b");
  } else {
    checkGather(bLargest, snlTotal, "b", "snl");
    checkLength(rLen, b.rows, "the residual", "one for each line of b");
  }
}

}  // namespace quarn
