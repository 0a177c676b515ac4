// "chandlediagnewmark".
#include "fixture.h"
#include "setups.h"

namespace {

using namespace build;

ON_MATLAB(Newmark);

TEST_P(Newmark, RunsACellListAndSavesEveryStep) {
  NewmarkRun n = newmarkRun(2, 20);
  const mxArray* list = cell(1, 2, {n.integrator, listMatrix(1, {1, 4})});
  run("chandlediagnewmark", n.arguments(list), 0);
  const Values def = values(field(n.out, "def"));
  const Values u = values(n.u);
  EXPECT_EQ(Values(def.end() - 2, def.end()), u);
  EXPECT_GT(u[0], 0.1);
  EXPECT_EQ(values(field(n.integrator, "data"))[5], 0.05 * 20);
  // A textbook run with the same numbers.
  const Values r = values(field(n.integrator, "r"));
  const Values k = values(field(n.integrator, "data"));
  const Values tft = values(field(n.integrator, "tft"));
  for (std::size_t mode = 0; mode < 2; ++mode) {
    double x = 0, v = 0, a = 0;
    for (std::size_t j = 0; j < 20; ++j) {
      x = (k[1] * a + k[0] * v) + x;
      v = k[2] * a + v;
      a = 0;
      double f = 0;
      f += r[2 + mode] * tft[2 * j + 1];
      f += (mode == 0 ? 1.0 : 4.0) * (x + 0.0 * v);
      const double d = f * r[4 + mode];
      x -= d;
      v -= k[3] * d;
      a -= d * k[4];
      ASSERT_EQ(def[2 * j + mode], x) << "mode " << mode << ", step " << j;
    }
  }
}

TEST_P(Newmark, RegisteredHandlesGiveTheSameBits) {
  NewmarkRun n = newmarkRun(2, 20);
  run("chandlediagnewmark", n.arguments(cell(1, 2, {n.integrator, listMatrix(1, {1, 4})})), 0);
  NewmarkRun m = newmarkRun(2, 20);
  const double integrator = set(2000, m.integrator);
  const double stiffness = set(1, listMatrix(1, {1, 4}));
  run("chandlediagnewmark", m.arguments(handles({integrator, stiffness})), 0);
  EXPECT_EQ(values(n.u), values(m.u));
  EXPECT_EQ(values(field(n.out, "def")), values(field(m.out, "def")));
  EXPECT_EQ(values(field(m.integrator, "data"))[5], 0.0);  // the registered value is a duplicate
}

TEST_P(Newmark, NeedsNeitherOutputsNorAStore) {
  NewmarkRun n = newmarkRun(2, 5);
  n.model = structure({});
  n.out = structure({{"data", nullptr}, {"def", nullptr}, {"FNL", nullptr}});
  n.opt = zeros(0);
  run("chandlediagnewmark", n.arguments(cell(1, 1, {n.integrator})), 0);
  EXPECT_NE(values(n.u)[0], 0.0);
  n.model = zeros(0);
  n.out = zeros(0);
  run("chandlediagnewmark", n.arguments(cell(1, 1, {standin::share(n.integrator)})), 0);
}

TEST_P(Newmark, SavesTheForceStoreAtTheTimesOfTheOutput) {
  NewmarkRun n = newmarkRun(1, 3);
  mxArray* saved = zeros(4, 3);
  n.out = withField(n.out, "FNL", structure({{"data", column({0.05, 0.1, 0.15000000000000002})}, {"def", saved}}));
  mxArray* integrator = withField(n.integrator, "iopt", int32s({1}));
  run("chandlediagnewmark", n.arguments(cell(1, 1, {integrator})), 0);
  const Values tft = values(field(n.integrator, "tft"));
  EXPECT_EQ(values(saved)[5], tft[3]);
}

TEST_P(Newmark, ErrorTexts) {
  NewmarkRun n = newmarkRun(2, 3);
  const auto refused = [&](const char* id, const char* text, const NewmarkRun& r, mxArray* integrator) {
    expectError(id, text, "chandlediagnewmark", r.arguments(cell(1, 1, {integrator})));
  };
  const auto changed = [&](const char* name, mxArray* value) { return withField(n.integrator, name, value); };
  refused("KORV:quarn:Invalid", "Full r expected", n, changed("r", compressed(2, 3, {1, 1, 1, 1, 1, 1})));
  refused("KORV:quarn:Invalid", "Inconsistent Nb & NT", n, changed("tft", zeros(3, 4)));
  refused("KORV:quarn:Invalid", "Inconsistent data length", n, changed("data", zeros(5)));
  refused("KORV:quarn:conform", "iopt must be int32", n, changed("iopt", zeros(1)));
  expectError("KORV:quarn:Invalid", "Expecting chandle vector", "chandlediagnewmark", n.arguments(zeros(3)));

  NewmarkRun small = newmarkRun(2, 3);
  small.mem = structure({{"uva", structure({{"uva", zeros(7)}})}});
  refused("KORV:quarn:Invalid", "wrong uva size", small, small.integrator);
  NewmarkRun shared = newmarkRun(2, 3);
  shared.a = standin::share(shared.v);
  refused("KORV:quarn:Invalid", "Identical v & a", shared, shared.integrator);
  shared = newmarkRun(2, 3);
  shared.v = standin::share(shared.u);
  refused("KORV:quarn:Invalid", "Identical v & u", shared, shared.integrator);
  shared = newmarkRun(2, 3);
  shared.a = shared.u;
  refused("KORV:quarn:Invalid", "Identical a & u", shared, shared.integrator);
  NewmarkRun far = newmarkRun(2, 3);
  mxArray* nl = element("Power", 2, {1, 1}, {{"unl", zeros(1)}, {"iopt", int32s({-1, 2, 0, 2, 1})}});
  expectError("KORV:quarn:Invalid", "iu+Nistate too large", "chandlediagnewmark", far.arguments(cell(1, 2, {far.integrator, nl})));
  for (mxArray* u : {n.u, small.u, shared.u, far.u}) EXPECT_EQ(values(u), (Values{0, 0}));
}

TEST_P(Newmark, RefusesWhatIsNotAnIntegratorOrTooShort) {
  NewmarkRun n = newmarkRun(2, 3);
  expectRefusal("the handle list is empty", "chandlediagnewmark", n.arguments(cell(0, 0, {})));
  expectRefusal("must be the integrator", "chandlediagnewmark", n.arguments(cell(1, 1, {listMatrix(1, {1, 1})})));
  expectRefusal("element 2 : expected a struct with a field \"type\"", "chandlediagnewmark",
                n.arguments(cell(1, 2, {n.integrator, nullptr})));
  expectRefusal("expected 9 inputs", "chandlediagnewmark", {cell(1, 1, {}), n.model, n.u, n.v, n.a});
  n.v = zeros(1);
  expectRefusal("v must hold 2 values", "chandlediagnewmark", n.arguments(cell(1, 1, {newmarkRun(2, 3).integrator})));
}

}  // namespace
