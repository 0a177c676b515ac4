// Laws of nonlinear elements that need no MATLAB function.
#pragma once

#include "gateway/structures/nl_element.h"

namespace quarn {

/// Link between a point A that turns with a rotor and a point B, with tabulated stiffness and damping forces. See rotcenter.h for
/// the parameters and formulas. Writes r, the cursors "cur_u" and "cur_v", and three values of the model's "FNL" where the
/// parameter cell has 11 rows or more.
void addRotCenter(const NlCall& call, const NlElement& e);
/// Refuses parameters with which addRotCenter would leave an array. Writes nothing.
void checkRotCenter(const NlCall& call, const NlElement& e);

/// A reserved law: forms products of the column of "cta" that has the element's row number with u and discards them. Adds
/// nothing to r and stores nothing.
void runMocirc2(const NlCall& call, const NlElement& e);
/// Refuses a missing "cta", one that is not sparse, and a column that it does not hold or that reaches past u.
void checkMocirc2(const NlCall& call, const NlElement& e);

}  // namespace quarn
