#include "fixture.h"

std::string modulePath;

void OnMatlab::SetUp() {
  standin::setErrors(GetParam());
  standin::define("remi", [](int, const standin::Arguments& args) -> std::vector<mxArray*> {
    const mxArray* indices = mxGetProperty(args[0], 0, "index");
    const auto place = static_cast<std::size_t>(mxGetScalar(args[1])) - 1;
    return {mxCreateDoubleScalar(build::values(indices)[place])};
  });
}

void OnMatlab::TearDown() {
  if (module.loaded()) module(0, {build::text("chandleclear")});
  module.clear();
  standin::undefineAll();
  standin::clearWorkspace();
  const standin::Live rest = standin::live();
  EXPECT_EQ(rest.persistentArrays, keptValues);
  EXPECT_EQ(rest.persistentBlocks, 0u);
  EXPECT_EQ(rest.blocks, 0u);
  standin::clearPersistent();
  EXPECT_EQ(standin::live().arrays, 0u);
  standin::printed();
}

standin::Result OnMatlab::quarn(int nlhs, const char* command, const standin::Arguments& args) {
  standin::Arguments all{build::text(command)};
  all.insert(all.end(), args.begin(), args.end());
  return module(nlhs, all);
}

mxArray* OnMatlab::run(const char* command, const standin::Arguments& args, int nlhs) {
  const standin::Result result = quarn(nlhs, command, args);
  EXPECT_FALSE(result.failed) << command << ": " << result.identifier << " " << result.text;
  return result.out[0];
}

void OnMatlab::expectError(const char* identifier, const char* text, const char* command, const standin::Arguments& args, int nlhs) {
  const standin::Result result = quarn(nlhs, command, args);
  EXPECT_TRUE(result.failed) << command;
  EXPECT_EQ(result.identifier, identifier);
  EXPECT_EQ(result.text, text);
}

void OnMatlab::expectRefusal(const char* part, const char* command, const standin::Arguments& args, int nlhs) {
  const standin::Result result = quarn(nlhs, command, args);
  EXPECT_TRUE(result.failed) << command;
  EXPECT_EQ(result.text.rfind(std::string("quarn ") + command + " : ", 0), 0u) << result.text;
  EXPECT_NE(result.text.find(part), std::string::npos) << result.text;
}

double OnMatlab::set(int type, mxArray* value) {
  mxArray* index = run("chandleset", {build::scalar(type), value});
  return index ? mxGetScalar(index) : -1.0;
}

mxArray* OnMatlab::handles(const build::Values& indices) {
  return standin::object("chandle", {{"index", build::column(indices)}}, indices.size());
}
