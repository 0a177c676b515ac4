#include "gateway/structures/nl_element.h"

#include <cstring>

#include "host/errors.h"

namespace quarn {

const mxArray* NlElement::needed(const char* name) const {
  const mxArray* a = field(name);
  if (!a) host::refuse("NL{%d,3} needs a field \"%s\", it has none", row + 1, name);
  return a;
}

namespace {

[[noreturn]] void refuseClass(const NlElement& e, const char* name) {
  host::refuse("NL{%d,3}.%s must be a full real double array, got %s", e.row + 1, name, host::describe(e.field(name)).text);
}

}  // namespace

host::Doubles NlElement::doubles(const char* name) const {
  if (!host::holdsDoubles(field(name))) refuseClass(*this, name);
  return host::doubles(field(name), name);
}

host::Doubles NlElement::writable(const char* name) const {
  if (!host::holdsReals(field(name))) refuseClass(*this, name);
  return host::realDoubles(field(name), name);
}

host::Doubles NlElement::writable(const char* name, std::size_t least) const {
  needed(name);
  const host::Doubles d = writable(name);
  if (d.count < least) host::refuse("NL{%d,3}.%s must hold %zu values, got %zu", row + 1, name, least, d.count);
  return d;
}

double NlElement::number(const char* name) const { return host::number(needed(name), name); }

const mxArray* NlElement::force() const {
  const mxArray* snl = field("snl");
  return snl ? snl : field("unl");
}

long long NlElement::pages() const { return mxGetNumberOfDimensions(data) > 2 ? static_cast<long long>(mxGetDimensions(data)[2]) : 1; }

NlElement nlElement(const mxArray* NL, int listRows, int j) {
  const mxArray* e = host::cell(NL, static_cast<std::size_t>(j) + 2 * static_cast<std::size_t>(listRows));
  if (e && !mxIsStruct(e)) host::refuse("NL{%d,3} must be a struct, got %s", j + 1, host::describe(e).text);
  return {e, j};
}

NlLaw nlLaw(const NlElement& e) {
  if (host::isClass(e.field("Fu"), "function_handle")) return NlLaw::functionHandle;
  const mxArray* type = e.needed("type");
  if (!mxIsChar(type)) {
    if (host::count(type) == 0 || mxIsNumeric(type) || mxIsLogical(type) || mxIsCell(type) || mxIsStruct(type)) {
      host::refuse("NL{%d,3}.type must be a law's name or a callable, got %s", e.row + 1, host::describe(type).text);
    }
    return NlLaw::callable;
  }
  char* word = mxArrayToString(type);
  if (!word) return NlLaw::nothing;
  const NlLaw law = word[0] == '\0'                       ? NlLaw::nothing
                    : std::strcmp(word, "rotcenter") == 0 ? NlLaw::rotcenter
                    : std::strcmp(word, "mocirc2") == 0   ? NlLaw::mocirc2
                                                          : NlLaw::hapsel;
  mxFree(word);
  return law;
}

}  // namespace quarn
