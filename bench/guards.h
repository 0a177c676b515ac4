// A piece of work and its parts, timed each for itself.
#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace quarn::bench {

using Part = std::pair<const char*, std::function<void()>>;

/// Notes the seconds of each part in the group "guards". The first one is the "whole".
void parts(const std::string& variant, long long size, bool threaded, const std::vector<Part>& all);

void benchHandleGuards();  ///< lists of handles, the integrator

}  // namespace quarn::bench
