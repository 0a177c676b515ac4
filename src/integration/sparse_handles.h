// Mass, stiffness and damping matrices as handles.
#pragma once

#include "base/chandle.h"
#include "integration/time_factor.h"
#include "sparse/sparse_view.h"

namespace quarn {

/// One matrix. Products take stored columns as lines: the matrices are symmetric in use.
///
/// A matrix with as many stored entries as columns is taken as diagonal, wherever the entries lie: initCpt writes -1 into the first
/// place of its index array, in the value itself, and from then on "pr" is the diagonal.
///
/// An optional field "factor" of stiffness and damping makes their forces, the Rayleigh term included, change with time in a run of the
/// integrator: see time_factor.h. Each sum of a line, or product with a diagonal value, is formed first and then multiplied.
class chandleSparse : public chandle {
 public:
  void checkSizes(const ROr& ctx, std::size_t rLen) override;
  bool endsSteps() const override { return false; }
  bool keepsToItself(const Range* ranges, int count) const override { return apartFrom(ranges, count, m.pr, m.prLen); }
  void takeTimes(const StepTimes& times) override { factor.take(times, name()); }
  void takeWork(host::Doubles r) override;
  const double* diagonalValues() const override { return diagonal() && !factor ? m.pr : nullptr; }

 protected:
  void readView();
  void markDiagonal();
  bool diagonal() const { return m.ir && m.ir[0] == -1; }
  /// Refuses a product of the first N lines with a vector of that many values.
  void checkTerm(std::int32_t N, std::size_t vectorLen, std::size_t rLen, const char* vectorName);
  virtual void checkTerms(const ROr& ctx, std::size_t rLen) = 0;
  virtual const char* name() const = 0;
  /// r += the first N lines times x.
  void addProduct(const double* x, std::int32_t N, double* r) const;
  /// r += f * (the first N lines times x), one thread.
  void addTimes(double f, const double* x, std::int32_t N, double* r) const;

  SparseView m;
  TimeFactor factor;
  host::Doubles operand;  ///< what the matrix multiplies, as it was when the sizes were checked

 private:
  /// The same where all lines are full: term turns the sum of a line into what is added.
  template <class Term>
  void addBlock(const double* x, std::int32_t N, double* r, const Term& term) const;

  int largest = -1;
  int verifiedLines = -1;
  int blockLength = 0;  ///< entries of each line where all lines are full with the same indices; else 0
  int blockFirst = 0;   ///< their first place
};

/// r += K*u + beta*K*v
class chandleSparseStiffness final : public chandleSparse {
 public:
  void initCpt() override;
  void Residual(ROr c, double* r) override;

 private:
  void checkTerms(const ROr& ctx, std::size_t rLen) override;
  void addChanging(const ROr& c, double f, double* r) const;
  const char* name() const override { return "the stiffness matrix"; }
};

/// r += M*a + alpha*M*v; nothing at all without an acceleration.
/// initCpt raises KORV:quarn:empty "no real part" and "Error not a valid mass".
class chandleSparseMass final : public chandleSparse {
 public:
  void initCpt() override;
  void Residual(ROr c, double* r) override;

 private:
  void checkTerms(const ROr& ctx, std::size_t rLen) override;
  const char* name() const override { return "the mass matrix"; }
};

/// r += C*v; a matrix without entries is none.
class chandleSparseDamping final : public chandleSparse {
 public:
  void initCpt() override;
  void Residual(ROr c, double* r) override;

 private:
  void checkTerms(const ROr& ctx, std::size_t rLen) override;
  void addChanging(const ROr& c, double f, double* r) const;
  const char* name() const override { return "the damping matrix"; }
};

/// r[j] += (line j . x) * factor, j < n: the serial Rayleigh terms.
void addScaledLines(const SparseView& m, const double* x, double factor, int n, double* r);

}  // namespace quarn
