/* A force law in C for quarn. docs/user_laws.md has a whole example.
 *
 *   #include "quarn_law.h"
 *
 *   static void cubic(const quarn_step* now, double* force, double* state) {
 *     const double x = now->x[0];
 *     force[0] = now->p[0] * x * x * x;
 *   }
 *   QUARN_LAW(cubic, 1, 1, 0)
 *
 * A file holds one law: a function, and the line QUARN_LAW (function, rows, parameters, states) that says how many displacements it
 * observes, how many parameters it takes and how many states it keeps. Rows and parameters may be QUARN_ANY: the counts are then in *now.
 *
 * The contract:
 *   - The function computes the forces at one instant. Force i acts on the structure like that of a spring along displacement i: positive
 *     pushes back when x is positive. On entry the forces are 0: a force that is not written stays 0.
 *   - On entry "state" holds the states as the last evaluation left them (0 at first), on return those at the end of this step. A state
 *     that is not written stays as it is.
 *   - A run evaluates the law once a step, at the predictor of the displacements and velocities, and never repeats or takes back a step.
 *     The command "residual" evaluates it once a call, with t = 0, and each call is a step of the law. All that a law remembers is in
 *     "state": no static variables, which all elements with the law would share and no saved run would hold.
 *   - x, v and p are for reading. Nothing may be kept of the pointers: they hold for this call.
 *   - Forces and states are finite for finite x and v; the module ends the call with an error where they are not.
 *   - An index out of range, a division of integers by zero, an endless loop ends the session or stops it, as in any program in C.
 */
#ifndef QUARN_LAW_H
#define QUARN_LAW_H

#ifdef __cplusplus
extern "C" {
#endif

#define QUARN_LAW_VERSION 1
#define QUARN_ANY (-1)

/* What a law sees at an evaluation. */
typedef struct quarn_step {
  int rows;        /* displacements observed, and forces */
  int parameters;  /* values of p */
  int states;      /* values of state */
  double t;        /* time at the end of the step [s]; 0 outside of runs */
  double h;        /* the time step [s] */
  const double* x; /* displacements [m] */
  const double* v; /* velocities [m/s] */
  const double* p; /* the parameters of the law */
} quarn_step;

typedef void (*quarn_law_function)(const quarn_step* now, double* force, double* state);

/* What the module looks for in the library of a law, under the name quarn_law_entry. */
typedef struct quarn_law {
  char magic[8]; /* "quarnlaw", without a zero at its end */
  int version;   /* QUARN_LAW_VERSION */
  int size;      /* bytes of this structure */
  int rows;
  int parameters;
  int states;
  quarn_law_function evaluate;
} quarn_law;

#define QUARN_LAW(function, rows, parameters, states)                            \
  __attribute__((visibility("default"))) extern const quarn_law quarn_law_entry; \
  const quarn_law quarn_law_entry = {                                            \
      {'q', 'u', 'a', 'r', 'n', 'l', 'a', 'w'}, QUARN_LAW_VERSION, (int)sizeof(quarn_law), rows, parameters, states, function};

#ifdef __cplusplus
}
#endif

#endif
