#include "gateway/structures/rotcenter.h"

#include <cmath>

#include "gateway/structures/nl_builtin.h"
#include "nonlinear/lin_interp.h"
#include "sparse/mt_products.h"

namespace quarn {

namespace {

// The places are looked at once more where they are used: an in-place array of the same call can share memory with them.

void gather(const PointDofs& point, const double* state, std::size_t length, double* motion) {
  for (std::size_t k = 0; k < point.n; ++k) {
    const long long pos = place(point.pos[k], 3);
    const long long dof = place(point.dof[k], length);
    if (pos >= 0 && dof >= 0) motion[pos] = state[dof];
  }
}

void scatter(const PointDofs& point, const double* force, double* r, std::size_t length) {
  for (std::size_t k = 0; k < point.n; ++k) {
    const long long pos = place(point.pos[k], 3);
    const long long dof = place(point.dof[k], length);
    if (pos >= 0 && dof >= 0) r[dof] += force[pos];
  }
}

/// T = R0 * Rz(theta), column-major.
void turn(const double* R0, double theta, double* T) {
  const double c = std::cos(theta);
  const double s = std::sin(theta);
  for (int i = 0; i < 3; ++i) {
    T[i] = c * R0[i] + s * R0[i + 3];
    T[i + 3] = c * R0[i + 3] - s * R0[i];
    T[i + 6] = R0[i + 6];
  }
}

/// out = a - T * b
void relative(const double* a, const double* T, const double* b, double* out) {
  for (int i = 0; i < 3; ++i) out[i] = a[i] - (T[i] * b[0] + T[i + 3] * b[1] + T[i + 6] * b[2]);
}

void tableForce(const ForceTable& table, const double* x, double* out) {
  vorel_LinInterp(table.X, x, table.cursor, out, table.knots, 1, 3, 1, nullptr, nullptr);
}

}  // namespace

void addRotCenter(const NlCall& call, const NlElement& e) {
  const RotCenter rc = readRotCenter(call, e);
  const std::size_t length = commonLength(call);
  const host::Doubles u{call.ctx.u, call.ctx.uLen};
  const host::Doubles v{call.ctx.v, call.ctx.vLen};
  double uA[3] = {}, vA[3] = {}, uB[3] = {}, vB[3] = {}, du[3] = {}, dv[3] = {}, fu[3] = {}, fv[3] = {};

  const long long rotation = place(rc.rotation, length);
  const double omega = v.data[rotation];
  double T[9];
  turn(rc.R0, u.data[rotation], T);

  if (rc.observed) {
    Prod_Mt_u(rc.obsA, u, {uA, 3}, "the element's Cell{15,2}");
    Prod_Mt_u(rc.obsA, v, {vA, 3}, "the element's Cell{15,2}");
    Prod_Mt_u(rc.obsB, u, {uB, 3}, "the element's Cell{17,2}");
    Prod_Mt_u(rc.obsB, v, {vB, 3}, "the element's Cell{17,2}");
  } else {
    gather(rc.A, u.data, length, uA);
    gather(rc.A, v.data, length, vA);
    gather(rc.B, u.data, length, uB);
    gather(rc.B, v.data, length, vB);
  }
  double a[3], b[3];
  for (int i = 0; i < 3; ++i) {
    vA[i] += omega * rc.w[i];
    a[i] = rc.p[i] + uA[i];
    b[i] = rc.q[i] + uB[i];
  }
  relative(b, T, a, du);
  tableForce(rc.fu, du, fu);
  relative(vB, T, vA, dv);
  tableForce(rc.fv, dv, fv);

  double f[3], g[3];
  for (int i = 0; i < 3; ++i) f[i] = fu[i] + fv[i];
  if (rc.store) {
    for (int i = 0; i < 3; ++i) call.ctx.FNL[rc.store[i]] = f[i];
  }
  for (std::ptrdiff_t i = 0; i < 3; ++i) g[i] = -(T[3 * i] * f[0] + T[3 * i + 1] * f[1] + T[3 * i + 2] * f[2]);
  if (rc.observed) {
    Add_Mt_u(rc.obsB, {f, 3}, call.r, "the element's Cell{17,2}");
    Add_Mt_u(rc.obsA, {g, 3}, call.r, "the element's Cell{15,2}");
  } else {
    scatter(rc.B, f, call.r.data, length);
    scatter(rc.A, g, call.r.data, length);
  }
}

}  // namespace quarn
