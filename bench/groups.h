// The groups of benchmarks.
#pragma once

namespace quarn::bench {

void benchProduct();        ///< parallel sparse product
void benchModes();          ///< integrator without forces
void benchGain();           ///< integrator with modes that are coupled
void benchHandles();        ///< integrator with force handles
void benchModalElements();  ///< elements with full rows in modal coordinates
void benchLaws();           ///< force laws
void benchTables();         ///< table look-up
void benchProjections();    ///< projections of a sparse matrix
void benchGuards();         ///< checks of arguments, and what else a call does before and behind its arithmetic
void benchEquations();      ///< time to solution against other integrators

/// Runs the group of that name; false if there is none.
bool runGroup(const char* name);

}  // namespace quarn::bench
