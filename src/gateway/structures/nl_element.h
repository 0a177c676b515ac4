// One element of a model's nonlinear list.
#pragma once

#include "base/ror.h"
#include "host/arrays.h"

namespace quarn {

/// What one residual call gives to its nonlinear elements. Borrowed for the call.
struct NlCall {
  const ROr& ctx;
  host::Doubles r;  ///< in-out
  int nrhs;
  const mxArray** prhs;  ///< the arguments, as callbacks are given them
};

/// How an element's force is found.
enum class NlLaw {
  functionHandle,  ///< "Fu" is a function handle
  callable,        ///< "type" is not a string: something for "feval"
  nothing,         ///< "type" is an empty string
  rotcenter,
  mocirc2,
  hapsel  ///< any other word: the toolbox function of that name finds it
};

/// An element structure and its place in the list. Errors name the element as the user does: NL{row,3}.
struct NlElement {
  const mxArray* data;  ///< struct with at least one element
  int row;              ///< 0-based

  /// Field of the element; null where it has none.
  const mxArray* field(const char* name) const { return host::field(data, name); }
  /// Field that the law cannot do without; refuses its absence.
  const mxArray* needed(const char* name) const;
  /// Data of a field that is read, a full double array; refuses other classes. Empty where there is no such field.
  host::Doubles doubles(const char* name) const;
  /// The same for a field that is written into; refuses complex arrays as well.
  host::Doubles writable(const char* name) const;
  /// The same for a field that must be there and hold least values or more.
  host::Doubles writable(const char* name, std::size_t least) const;
  /// First value of a field that must be there.
  double number(const char* name) const;
  /// The array whose values are assembled: "snl", or "unl" where there is none; null without both.
  const mxArray* force() const;
  /// Pages of the element: the third extent of the structure itself, 1 where it has two dimensions.
  long long pages() const;
};

/// Row j of the list, whose third column starts at element 2 * listRows. data is null where the row holds no element, as in a list of
/// fewer columns.
/// Refuses an element that is not a struct.
NlElement nlElement(const mxArray* NL, int listRows, int j);

/// The law that e asks for. Refuses an element with neither a function handle "Fu" nor a "type".
NlLaw nlLaw(const NlElement& e);

/// Whether the law is a MATLAB function.
constexpr bool callsBack(NlLaw law) { return law == NlLaw::functionHandle || law == NlLaw::callable || law == NlLaw::hapsel; }

}  // namespace quarn
