#include "fixture.h"

namespace {

using namespace build;

ON_MATLAB(Gateway);

TEST_P(Gateway, AnswersThePresenceCallAlsoWithoutAnOutput) {
  for (const int nlhs : {0, 1}) {
    const standin::Result result = module(nlhs, {});
    ASSERT_FALSE(result.failed);
    ASSERT_NE(result.out[0], nullptr);
    EXPECT_EQ(mxGetScalar(result.out[0]), 1.0001);
  }
}

TEST_P(Gateway, ServiceCommandsAnswer) {
  EXPECT_EQ(mxGetScalar(run("ismex")), 1.0);
  EXPECT_EQ(mxGetScalar(run("omp", {zeros(2), cell(1, 1, {nullptr})})), -1.0);
  char revision[80];
  ASSERT_EQ(mxGetString(run("cvs"), revision, sizeof revision), 0);
  EXPECT_STREQ(revision, "$Revision: 1.38 $  $Date: 2018/05/15 16:21:58 $");
  const mxArray* version = run("version");
  for (const char* field : {"version", "compiler", "host", "cblas"}) EXPECT_TRUE(mxIsChar(mxGetField(version, 0, field))) << field;
  EXPECT_EQ(run("nlv1", {structure({{"unl", zeros(0)}})}, 0), nullptr);
}

TEST_P(Gateway, NoCommandMatchesByPrefixOrInAnotherCase) {
  for (const char* word : {"residuals", "Residual", "resid", "", "ismex ", "chandle"}) {
    expectError("", "quarn : Unknown command", word);
  }
  const standin::Result column = module(0, {cell(1, 1, {text("ismex")})});
  EXPECT_EQ(column.text, "quarn : Unknown command");
  EXPECT_EQ(module(0, {zeros(2)}).text, "quarn : Unknown command");
}

TEST_P(Gateway, AStringObjectIsToldFromAnUnknownCommand) {
  EXPECT_EQ(module(0, {standin::object("string", {{"data", text("ismex")}})}).text,
            "quarn : a command word is a character vector, got string");
  EXPECT_EQ(module(0, {standin::object("strings", {{"data", text("ismex")}})}).text, "quarn : Unknown command");
}

TEST_P(Gateway, WordsOfAThousandCharactersAreUnknown) { expectError("", "quarn : Unknown command", std::string(1000, 'a').c_str()); }

TEST_P(Gateway, NlV1RefusesWhatHasNoUnl) {
  expectRefusal("expected a struct with a field \"unl\"", "nlv1");
  expectRefusal("expected a struct with a field \"unl\"", "nlv1", {zeros(1)});
  expectRefusal("expected a struct with a field \"unl\"", "nlv1", {mxCreateStructMatrix(0, 1, 0, nullptr)});
}

TEST_P(Gateway, ACallLeavesNothingForTheHostToReclaimOnSuccess) {
  const standin::Result result = quarn(1, "cvs");
  EXPECT_EQ(result.reclaimedArrays, 0u);
  EXPECT_EQ(result.reclaimedBlocks, 0u);
}

}  // namespace
