// Observation of the state by a nonlinear element.
#pragma once

#include "gateway/structures/nl_element.h"

namespace quarn {

/// Refreshes the element's buffers in place: "vnl" = c * v and "unl" = c * u, on top of their initial contents.
///
/// A 2-D buffer starts from "vnl0" ("unl0"), or from 0. A buffer of 3 or more dimensions is a stack of pages of rows x columns
/// values; its first page is refreshed and starts from the second page, or from 0 where the element has one page only. How many
/// pages count is said by the element structure's own third extent P, not by the buffer. With P > 2 the first page is kept
/// in the third before that, when the switching factor is negative: opt(2), minus the call's opt.tc, 1 without "opt". It is read
/// once, for "vnl", and holds for "unl" as well.
void observe(const NlCall& call, const NlElement& e);

/// Refuses fields with which observe would leave an array. Writes nothing.
void checkObservation(const NlCall& call, const NlElement& e);

}  // namespace quarn
