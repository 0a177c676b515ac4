#include "groups.h"
namespace quarn::bench { void benchEquations(){} }
