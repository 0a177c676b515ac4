#include "results.h"

#include <cmath>
#include <cstdio>
#include <stdexcept>

#include "harness.h"

namespace quarn::bench {

namespace {
std::string records;
bool failed = false;
bool isQuick = false;

std::string number(double x) {
  if (!std::isfinite(x)) return "null";
  char text[40];
  std::snprintf(text, sizeof text, "%.17g", x);
  return text;
}
}  // namespace

bool quick() { return isQuick; }
void setQuick(bool on) { isQuick = on; }
void fail() { failed = true; }

void note(const std::string& group, const std::string& variant, long long size, const std::string& program, double seconds,
          const std::vector<std::pair<std::string, double>>& more) {
  std::string r = R"({"group":")" + group + R"(","variant":")" + variant + R"(","size":)" + std::to_string(size) + R"(,"program":")" +
                  program + R"(","seconds":)" + number(seconds);
  for (const auto& [name, value] : more) r.append(",\"").append(name).append("\":").append(number(value));
  records += (records.empty() ? "" : ",\n") + r + "}";
}

bool writeResults(const std::string& file) {
  std::FILE* out = std::fopen(file.c_str(), "w");
  if (!out) throw std::runtime_error("cannot write " + file);
  std::fprintf(out, "[%s]\n", records.c_str());
  std::fclose(out);
  return !failed;
}

}  // namespace quarn::bench
