#include "same_bits/records.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>

Records::Records(const std::string& from) : path(from), file(from) {
  if (!file) bad("cannot be opened");
}

void Records::bad(const std::string& what) const {
  std::fprintf(stderr, "%s: %s\n", path.c_str(), what.c_str());
  std::exit(2);
}

std::string Records::word() {
  std::string text;
  if (!(file >> text)) bad("breaks off");
  return text;
}

std::size_t Records::number() {
  std::size_t n = 0;
  if (!(file >> n)) bad("a count was expected");
  return n;
}

std::vector<mwSize> Records::extents() {
  std::vector<mwSize> dims(number());
  for (mwSize& extent : dims) extent = number();
  return dims;
}

bool Records::next(Record& record) {
  const std::string start = word();
  if (start == "end") return false;
  if (start != "call") bad("behind " + record.name + " a call was expected, not " + start);
  record.name = word();
  record.results = static_cast<int>(number());
  const std::size_t count = number();
  record.before.clear();
  record.after.clear();
  for (std::size_t k = 0; k < count; ++k) record.before.push_back(value());
  for (std::size_t k = 0; k < count + static_cast<std::size_t>(record.results); ++k) {
    const std::string kind = word();
    const bool unchanged = kind == "=" && k < count;
    record.after.push_back(unchanged ? mxDuplicateArray(record.before[k]) : valueOfKind(kind));
  }
  return true;
}

mxArray* Records::value() { return valueOfKind(word()); }

mxArray* Records::valueOfKind(const std::string& kind) {
  if (kind == "d" || kind == "z") {
    const auto dims = extents();
    mxArray* a = mxCreateNumericArray(dims.size(), dims.data(), mxDOUBLE_CLASS, kind == "z" ? mxCOMPLEX : mxREAL);
    for (double* data : {mxGetPr(a), kind == "z" ? mxGetPi(a) : nullptr}) {
      for (std::size_t k = 0; data && k < mxGetNumberOfElements(a); ++k) {
        const std::uint64_t bits = std::strtoull(word().c_str(), nullptr, 16);
        std::memcpy(data + k, &bits, sizeof bits);
      }
    }
    return a;
  }
  if (kind == "i") {
    const auto dims = extents();
    mxArray* a = mxCreateNumericArray(dims.size(), dims.data(), mxINT32_CLASS, mxREAL);
    auto* data = static_cast<std::int32_t*>(mxGetData(a));
    for (std::size_t k = 0; k < mxGetNumberOfElements(a); ++k) {
      if (!(file >> data[k])) bad("an integer was expected");
    }
    return a;
  }
  if (kind == "t") {
    std::string text(number(), ' ');
    for (char& c : text) c = static_cast<char>(number());
    return mxCreateString(text.c_str());
  }
  if (kind == "c") {
    const auto dims = extents();
    mxArray* a = mxCreateCellArray(dims.size(), dims.data());
    for (std::size_t k = 0; k < mxGetNumberOfElements(a); ++k) mxSetCell(a, k, value());
    return a;
  }
  if (kind == "s") {
    std::vector<std::string> names(number());
    for (std::string& name : names) name = word();
    std::vector<const char*> pointers;
    for (const std::string& name : names) pointers.push_back(name.c_str());
    const auto dims = extents();
    mxArray* a = mxCreateStructArray(dims.size(), dims.data(), static_cast<int>(names.size()), pointers.data());
    for (std::size_t k = 0; k < mxGetNumberOfElements(a); ++k) {
      for (std::size_t f = 0; f < names.size(); ++f) mxSetFieldByNumber(a, k, static_cast<int>(f), value());
    }
    return a;
  }
  if (kind != "h") bad("no kind of value: " + kind);
  const std::size_t n = number();
  mxArray* indices = mxCreateDoubleMatrix(n, 1, mxREAL);
  for (std::size_t k = 0; k < n; ++k) mxGetPr(indices)[k] = static_cast<double>(number());
  return standin::object("chandle", {{"index", indices}}, n);
}
