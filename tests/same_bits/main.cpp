// Compares what the module computed in one process with what it computed in another.
//
//   quarn_same_bits replay FILE MODULE   makes the recorded calls on the stand-in host: everything must have the recorded bits
//   quarn_same_bits compare FILE FILE    two recordings with different BLAS libraries: cases named "one..." must have the same bits, cases
//                                        named "sum..." may differ by 1e-14 of the largest number in the array
#include <cstdio>
#include <map>

#include "same_bits/records.h"

namespace {

struct Summary {
  std::size_t calls = 0;
  std::size_t callsApart = 0;
  Difference all;
};

std::map<std::string, Summary> cases;
bool good = true;

void note(const Record& record, const Difference& d, double tolerance) {
  Summary& s = cases[record.name];
  ++s.calls;
  if (d.bits > 0 || d.shape) ++s.callsApart;
  s.all.add(d);
  if (d.shape || (tolerance > 0.0 ? !(d.worst <= tolerance) : d.bits > 0)) good = false;
}

/// Arguments that were written in place, and results.
Difference between(const std::vector<mxArray*>& a, const std::vector<mxArray*>& b) {
  Difference d;
  d.shape = a.size() != b.size();
  for (std::size_t k = 0; !d.shape && k < a.size(); ++k) d.add(difference(a[k], b[k]));
  return d;
}

void replay(const char* file, const char* path) {
  standin::define("remi", [](int, const standin::Arguments& args) -> std::vector<mxArray*> {
    const mxArray* indices = mxGetProperty(args[0], 0, "index");
    return {mxCreateDoubleScalar(mxGetPr(indices)[static_cast<std::size_t>(mxGetScalar(args[1])) - 1])};
  });
  Records records(file);
  standin::Module module(path);
  for (Record record; records.next(record); standin::clearWorkspace()) {
    const standin::Result result = module(record.results, {record.before.begin(), record.before.end()});
    Difference d;
    if (result.failed) {
      std::printf("%s: %s\n", record.name.c_str(), result.text.c_str());
      d.shape = true;
    } else {
      std::vector<mxArray*> after = record.before;
      after.insert(after.end(), result.out.begin(), result.out.begin() + record.results);
      d = between(after, record.after);
    }
    note(record, d, 0.0);
  }
}

void compare(const char* one, const char* other) {
  Records a(one);
  Records b(other);
  Record x;
  Record y;
  while (a.next(x)) {
    if (!b.next(y) || x.name != y.name) {
      std::printf("the recordings hold different calls from %s on\n", x.name.c_str());
      good = false;
      return;
    }
    // A later call of a case may be given what an earlier one has computed: only results count.
    note(x, between(x.after, y.after), x.name.rfind("sum", 0) == 0 ? 1e-14 : 0.0);
    standin::clearWorkspace();
  }
  if (b.next(y)) good = false;
}

}  // namespace

int main(int argc, char** argv) {
  const std::string mode = argc == 4 ? argv[1] : "";
  if (mode == "replay") {
    replay(argv[2], argv[3]);
  } else if (mode == "compare") {
    compare(argv[2], argv[3]);
  } else {
    std::fprintf(stderr, "usage: %s replay FILE MODULE | compare FILE FILE\n", argv[0]);
    return 2;
  }
  Summary total;
  for (const auto& [name, s] : cases) {
    total.calls += s.calls;
    total.callsApart += s.callsApart;
    total.all.add(s.all);
    if (s.callsApart > 0) {
      std::printf("  %-28s %4zu of %4zu calls differ, %zu of %zu numbers, by %.2g at most%s\n", name.c_str(), s.callsApart, s.calls,
                  s.all.bits, s.all.numbers, s.all.worst, s.all.shape ? ", not only in numbers" : "");
    }
  }
  std::printf("%s: %zu calls of %zu cases, %zu numbers, %zu with other bits: %s\n", mode.c_str(), total.calls, cases.size(),
              total.all.numbers, total.all.bits, good ? "as it should be" : "WRONG");
  return good && total.calls > 0 ? 0 : 1;
}
