// The host's MEX interface, included from here only.
#pragma once

#include <cstddef>
#include <cstdint>

#include <mex.h>
