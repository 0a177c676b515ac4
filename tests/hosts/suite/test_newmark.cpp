// "chandlediagnewmark".
#include <cmath>

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

TEST_P(Newmark, AMatrixGainTakesThePlaceOfTheColumn) {
  NewmarkRun n = newmarkRun(2, 20);
  const Values r = values(field(n.integrator, "r"));
  run("chandlediagnewmark", n.arguments(cell(1, 2, {n.integrator, listMatrix(1, {1, 4})})), 0);
  NewmarkRun diagonal = newmarkRun(2, 20);
  mxArray* same = withField(diagonal.integrator, "gain", matrix(2, 2, {r[4], 0, 0, r[5]}));
  run("chandlediagnewmark", diagonal.arguments(cell(1, 2, {same, listMatrix(1, {1, 4})})), 0);
  EXPECT_EQ(values(n.u), values(diagonal.u));
  EXPECT_EQ(values(field(n.out, "def")), values(field(diagonal.out, "def")));
  NewmarkRun empty = newmarkRun(2, 20);
  run("chandlediagnewmark", empty.arguments(cell(1, 2, {withField(empty.integrator, "gain", zeros(0)), listMatrix(1, {1, 4})})), 0);
  EXPECT_EQ(values(n.u), values(empty.u));
  NewmarkRun crossed = newmarkRun(2, 1);
  run("chandlediagnewmark", crossed.arguments(cell(1, 1, {withField(crossed.integrator, "gain", matrix(2, 2, {0, 3, 5, 0}))})), 0);
  EXPECT_EQ(values(crossed.u), (Values{0, 0}));  // the first load is zero
  mxGetPr(crossed.a)[0] = 2.0;
  run("chandlediagnewmark",
      crossed.arguments(cell(1, 2, {withField(crossed.integrator, "gain", matrix(2, 2, {0, 3, 5, 0})), listMatrix(1, {1, 4})})), 0);
  const double up = 2.0 * 0.25 * 0.05 * 0.05;
  EXPECT_EQ(values(crossed.u), (Values{up, -3 * up}));
}

TEST_P(Newmark, RefusesAMatrixGainThatDoesNotFit) {
  NewmarkRun n = newmarkRun(2, 3);
  const auto refused = [&](const char* text, mxArray* gain) {
    expectRefusal(text, "chandlediagnewmark", n.arguments(cell(1, 1, {withField(n.integrator, "gain", gain)})));
    EXPECT_EQ(values(field(n.integrator, "data"))[5], 0.0);
  };
  refused("gain must be 2 x 2, a row and a column for each row of r, got double 2x3", zeros(2, 3));
  refused("gain must be 2 x 2, a row and a column for each row of r, got double 4x1", zeros(4));
  refused("gain must be a full real double array, got complex double 2x2", complexMatrix(2, 2, {1, 0, 0, 1}, {0, 1, 0, 0}));
  refused("gain must be a full real double array, got sparse double 2x2", nativeSparse({1, 2}));
  refused("gain must be a full real double array, got int32 4x1", int32s({1, 0, 0, 1}));
  refused("gain must be a full real double array, got char 1x4", text("gain"));
  refused("gain must be finite, got nan in row 2, column 1", matrix(2, 2, {1, std::nan(""), 0, 1}));
  refused("gain must be finite, got inf in row 1, column 2", matrix(2, 2, {1, 0, HUGE_VAL, 1}));
  EXPECT_EQ(values(n.u), (Values{0, 0}));
}

TEST_P(Newmark, AFactorOfTimeMultipliesAMatrixAndPagesFollowIt) {
  NewmarkRun n = newmarkRun(1, 1, 0.5);
  mxGetPr(n.u)[0] = 1.0;
  mxArray* paged = withField(withField(n.integrator, "gain", pages(1, 1, 2, {0.1, 0.3})), "gaint", matrix(1, 2, {0, 1}));
  mxArray* changing = withField(listMatrix(1, {4}), "factor", matrix(2, 2, {0, 1, 1, 2}));
  run("chandlediagnewmark", n.arguments(cell(1, 2, {paged, changing})), 0);
  EXPECT_NEAR(values(n.u)[0], 1.0 - 0.2 * (1.5 * 4), 1e-15);  // halfway between the knots; the first load is zero
}

TEST_P(Newmark, RefusesAFactorThatDoesNotFit) {
  NewmarkRun n = newmarkRun(2, 3);
  const auto refused = [&](const char* text, int type, mxArray* factor) {
    mxArray* m = withField(listMatrix(type, {1, 4}), "factor", factor);
    expectRefusal(text, "chandlediagnewmark", n.arguments(cell(1, 2, {standin::share(n.integrator), m})));
    EXPECT_EQ(values(field(n.integrator, "data"))[5], 0.0);
  };
  refused("element 2 : the factor of the stiffness matrix must be 2 x n", 1, zeros(3));
  refused("element 2 : the factor of the damping matrix must be a full real double array, got int32 2x1", 3, int32s({0, 1}));
  refused("a mass matrix has no \"factor\" of time", 2, matrix(2, 2, {0, 1, 1, 1}));
  refused("must be finite and ascend (two equal ones are a jump), got 0 in column 2", 1, matrix(2, 2, {1, 1, 0, 1}));
  refused("must be given for every step", 3, matrix(2, 2, {0, 1, 0.1, 1}));
  const double k = set(1, withField(listMatrix(1, {1, 4}), "factor", matrix(2, 2, {0, 1, 1, 1})));
  expectRefusal("which only a run of the integrator has", "residual", {zeros(2), handles({k}), zeros(2), zeros(2), zeros(2)});
}

TEST_P(Newmark, RefusesPagesOfAGainThatDoNotFit) {
  NewmarkRun n = newmarkRun(1, 3);
  const auto refused = [&](const char* text, mxArray* gain, mxArray* times) {
    mxArray* integrator = withField(withField(n.integrator, "gain", gain), "gaint", times);
    expectRefusal(text, "chandlediagnewmark", n.arguments(cell(1, 1, {integrator})));
  };
  refused("gain must be 1 x 1 x 3, a page for each time of gaint", pages(1, 1, 2, {1, 1}), column({0, 1, 2}));
  refused("and there is no gain", zeros(0), column({0, 1, 2}));
  refused("gaint must be finite and ascend", pages(1, 1, 2, {1, 1}), column({0, -1}));
  refused("gain must be given for every step", pages(1, 1, 2, {1, 1}), column({0, 0.1}));
}

TEST_P(Newmark, RefusesAMatrixGainInMemoryThatAStepWrites) {
  NewmarkRun n = newmarkRun(1, 3);
  const auto refused = [&](const char* text, mxArray* gain) {
    expectRefusal(text, "chandlediagnewmark", n.arguments(cell(1, 1, {withField(n.integrator, "gain", gain)})));
  };
  refused("memory of its own, got that of u,", standin::share(n.u));
  refused("memory of its own, got that of v,", standin::share(n.v));
  refused("memory of its own, got that of a,", standin::share(n.a));
  n.u = zeros(4);
  n.mem = structure({{"uva", structure({{"uva", standin::share(n.u)}, {"FNL", zeros(4)}})}});
  refused("mem.uva.uva must have memory of its own beside a gain that is a matrix, got that of u", zeros(1, 1));
}

TEST_P(Newmark, EnergiesOfARunAddUpAndItsRatesAreThoseOfTheRun) {
  NewmarkRun n = newmarkRun(2, 20);
  run("chandlediagnewmark", n.arguments(cell(1, 2, {n.integrator, listMatrix(1, {1, 4})})), 0);
  // The loads of a step stand in the column before; those at the first time and the last one act as zero here, where the motion is at rest.
  Values q{0, 0};
  for (const double x : values(field(n.out, "def"))) q.push_back(x);
  const Values tft = values(field(n.integrator, "tft"));
  const Values r = values(field(n.integrator, "r"));
  Values loads{0};
  for (std::size_t j = 0; j < 20; ++j) loads.push_back(-tft[2 * j + 1]);
  const standin::Arguments args{matrix(2, 21, q),     column({1, 4}),      zeros(2), column({0.05, 0.5}), zeros(2), zeros(2),
                                column({r[2], r[3]}), matrix(1, 21, loads)};
  const std::vector<mxArray*> out = quarn(3, "energies", args).out;
  ASSERT_EQ(out.size(), 3u);
  const Values e = values(out[0]);
  ASSERT_EQ(e.size(), 84u);
  EXPECT_GT(e[80], 1e-6);
  EXPECT_NEAR(e[80] + e[81] + e[82], e[83], 1e-13);
  const Values v = values(out[1]);
  const Values a = values(out[2]);
  for (std::size_t mode = 0; mode < 2; ++mode) {
    EXPECT_NEAR(v[40 + mode], values(n.v)[mode], 1e-13);
    EXPECT_NEAR(a[40 + mode], values(n.a)[mode], 1e-13);
  }
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
