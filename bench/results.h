// Where a benchmark program keeps its results.
#pragma once

#include <string>

namespace quarn::bench {

/// Remembers that programs computed different numbers.
void fail();

/// Writes all notes as a JSON list. Returns whether all compared programs computed the same numbers.
bool writeResults(const std::string& file);

void setQuick(bool on);

}  // namespace quarn::bench
