// Laws of nonlinear elements that are MATLAB functions.
//
// They are called with (element, r, model, u, v, a, opt, extra) and may write into the element's arrays in place; F is read after
// they have returned. Their errors leave the command unchanged.
#pragma once

#include "gateway/structures/nl_element.h"

namespace quarn {

/// "Fu" is a function handle, called for one result R. F is R; of a struct R its "snl", or its "unl"; without a result the
/// element's own force array. Adds b * F to r, then stores the rows of F in the model's "FNL" from "FInd" on, if "StoreFNL" is not
/// 0 and there is an "FNL"; what lies outside "FNL" is left out.
void addHandleLaw(const NlCall& call, const NlElement& e);

/// "type" is something for "feval", or a word that the toolbox function hapsel knows; called without a result. Adds b * F to
/// r for an element with "b" and "unl", F being the element's force array.
void addCallableLaw(const NlCall& call, const NlElement& e);
void addHapselLaw(const NlCall& call, const NlElement& e);

/// Refuses what the function above could not use, before anything is called or written.
void checkHandleLaw(const NlCall& call, const NlElement& e);
void checkCallableLaw(const NlCall& call, const NlElement& e);

}  // namespace quarn
