// Nonlinear elements: as handles with every law, and in the list "NL" of a model.
#include <cmath>

#include "fixture.h"
#include "setups.h"

namespace {

using namespace build;

ON_MATLAB(Elements);

TEST_P(Elements, PowerAndExponentialLawsAddTheirForce) {
  const double power = set(1003, element("Power", 3, {2, 3}, {{"unl", zeros(1)}, {"snl", zeros(1)}}));
  const double expon = set(1003, element("Expon", 3, {2, 3}, {{"unl", zeros(1)}, {"snl", zeros(1)}}));
  mxArray* r = zeros(3);
  run("residual", {r, handles({power}), column({1.5, 9, 9}), zeros(3), zeros(0)}, 0);
  EXPECT_EQ(values(r), (Values{2 * std::pow(1.5, 3), 0, 0}));
  run("residual", {r, handles({expon}), column({2, 9, 9}), zeros(3), zeros(0)}, 0);
  EXPECT_EQ(values(r), (Values{2 * std::pow(1.5, 3) + 18, 0, 0}));
  // The registered value holds what the law wrote.
  EXPECT_EQ(values(field(run("chandleget", {scalar(expon)}), "snl")), (Values{18}));
  keptValues = 2;
}

TEST_P(Elements, DampersPushAlongTheVelocity) {
  const double damper = set(1003, element("Damper", 3, {2, 2}, {{"unl", zeros(1)}, {"vnl", zeros(1)}, {"snl", zeros(1)}}));
  mxArray* r = zeros(3);
  run("residual", {r, handles({damper}), column({9, 9, 9}), column({-1.5, 9, 9}), zeros(0)}, 0);
  EXPECT_EQ(values(r), (Values{-2 * 1.5 * 1.5, 0, 0}));
  run("residual", {r, handles({damper}), column({9, 9, 9}), column({0, 9, 9}), zeros(0)}, 0);
  EXPECT_EQ(values(r), (Values{-4.5, 0, 0}));
  keptValues = 1;
}

TEST_P(Elements, BoucWenHysteresisReachesItsLimitAndStaysAtTheSamePlace) {
  // Stiffness 100, a quarter elastic, A 2, beta 3, gamma 5, exponent 1: the limit is 0.25.
  mxArray* value = element("BoucWen", 3, {0, 0, 100, 0.25, 2, 3, 5, 1}, {{"unl", zeros(3)}, {"snl", zeros(3)}, {"iopt", int32s({-1, 0})}});
  const double index = set(1003, value);
  mxArray* r = zeros(3);
  for (int round = 0; round < 2; ++round) run("residual", {r, handles({index}), column({40, 9, 9}), zeros(3), zeros(0)}, 0);
  mxArray* after = run("chandleget", {scalar(index)});
  EXPECT_EQ(values(field(after, "unl")), (Values{40, 0.25, 40}));
  EXPECT_EQ(values(field(after, "snl"))[0], 100 * (0.25 * 40 + 0.75 * 0.25));
  keptValues = 1;
}

TEST_P(Elements, ImpactsPushAndNeverPull) {
  // Stiffness 2, exponent 1, damping 0.5, gap 1, on the side of negative values.
  const double stop = set(1003, element("Contact", 3, {2, 1, 0.5, 1, -1}, {{"unl", zeros(1)}, {"vnl", zeros(1)}, {"snl", zeros(1)}}));
  const auto force = [&](double u, double v) {
    mxArray* r = zeros(3);
    run("residual", {r, handles({stop}), column({u, 9, 9}), column({v, 9, 9}), zeros(0)}, 0);
    return values(r)[0];
  };
  EXPECT_EQ(force(-4, -1), -2 * 3 * 1.5);
  EXPECT_EQ(force(-4, 1), -2 * 3 * 0.5);
  EXPECT_EQ(force(-4, 3), 0.0);
  EXPECT_EQ(force(-1, -5), 0.0);
  EXPECT_EQ(force(4, 0), 0.0);
  keptValues = 1;
}

TEST_P(Elements, TableLawInterpolatesAndKeepsItsRecord) {
  // opt: code, record (3), abscissae 0 1 2, forces 0 10 40
  const double table = set(1003, element("Table", 1, {0, 0, 0, 0, 1, 2, 0, 10, 40},
                                         {{"unl", zeros(1)}, {"snl", zeros(1)}, {"iopt", int32s({-1, 0, 0, 0, 0, 4, 1, 3, 1})}}));
  mxArray* r = zeros(1);
  run("residual", {r, handles({table}), scalar(1.5), zeros(1), zeros(0)}, 0);
  EXPECT_EQ(values(r), (Values{25}));
  EXPECT_EQ(values(field(run("chandleget", {scalar(table)}), "opt"))[1], 1.0);
  keptValues = 1;
}

TEST_P(Elements, SurfacesInterpolateTwiceAndGoOnBeyondTheirGrid) {
  // opt: code, record (2), displacements 0 1 3, velocities -2 2, forces 0 10 30 at -2 m/s, 4 18 22 at 2 m/s
  mxArray* value = element("Surface", 1, {0, 0, 0, 1, 3, -2, 2, 0, 10, 30, 4, 18, 22},
                           {{"unl", zeros(1)}, {"vnl", zeros(1)}, {"snl", zeros(1)}, {"iopt", int32s({-1, 0, 0, 0, 0, 3, 2})}});
  const double surface = set(1003, value);
  const auto force = [&](double u, double v) {
    mxArray* r = zeros(1);
    run("residual", {r, handles({surface}), scalar(u), scalar(v), zeros(0)}, 0);
    return values(r)[0];
  };
  const auto record = [&] { return values(field(run("chandleget", {scalar(surface)}), "opt")); };
  EXPECT_EQ(force(0.5, -2), 5.0);
  EXPECT_EQ(force(2, 1), 20.0);
  EXPECT_EQ(record()[1], 0.0);
  EXPECT_EQ(force(5, 4), 14.0);  // from 50 N at -2 m/s and 26 N at 2 m/s
  EXPECT_EQ(record()[1], 2.0);
  EXPECT_EQ(record()[2], 2.0);
  keptValues = 1;
}

TEST_P(Elements, LawsWithStatesStoreForcesInTheModel) {
  struct Case {
    const char* law;
    Values parameters;
    Values unl;  // two pages
    Values vnl;
    std::vector<int> iopt;
  };
  const Case cases[] = {
      {"DahlC", {0, 0.1, 100, 1, 0.5, 8}, {0, 0, 0, 0}, {0, 0, 0, 0}, {1, 0, 0, 0, 0}},
      {"sts", {0, 0.1, 1, 10, 5, 2}, {0, 0, 0, 0}, {0, 0, 0, 0}, {1, 0, 0, 0, 0}},
  };
  for (const Case& c : cases) {
    mxArray* fnl = column({7, 7, 7, 7});
    mxArray* value = element(c.law, 2, c.parameters,
                             {{"unl", pages(2, 1, 2, c.unl)}, {"vnl", pages(2, 1, 2, c.vnl)}, {"snl", zeros(2)}, {"iopt", int32s(c.iopt)}});
    mxArray* model = structure({{"FNL", fnl}});
    mxArray* integrator = newmarkRun().integrator;
    NewmarkRun n = newmarkRun();
    n.model = model;
    n.u = column({0.5, 0});
    n.v = column({1, 0});
    ASSERT_EQ(run("chandlediagnewmark", n.arguments(cell(1, 2, {integrator, value})), 0), nullptr) << c.law;
    EXPECT_EQ(values(fnl)[0], 7.0) << c.law;
    EXPECT_NE(values(fnl)[1], 7.0) << c.law;
    EXPECT_EQ(values(fnl)[3], 7.0) << c.law;
  }
}

TEST_P(Elements, LawsErrorTexts) {
  const auto refused = [&](const char* id, const char* text, mxArray* value) {
    const double index = set(1003, value);
    expectError(id, text, "residual", {zeros(1), handles({index}), zeros(1), zeros(1), zeros(0)});
    ++keptValues;
  };
  refused("KORV:quarn:empty", "ReportEB opt", structure({{"unl", zeros(1)}}));
  refused("KORV:quarn:empty", "ReportEB opt", structure({{"opt", zeros(0)}}));
  refused("KORV:quarn:empty", "Unknown .opt(1) choice", structure({{"opt", scalar(12)}}));
  refused("KORV:quarn:empty", "Unknown .opt(1) choice", structure({{"opt", scalar(std::nan(""))}}));
  refused("KORV:quarn:empty", "FuPower requires 3 parameters", element("Power", 1, {1}));
  refused("KORV:quarn:empty", "Incorrect unl", element("DahlC", 1, Values(6), {{"unl", zeros(2)}}));
  refused("KORV:quarn:empty", "Incorrect unl", element("Clima2", 1, Values(6), {{"unl", zeros(5)}}));
  refused("KORV:quarn:conform", "iopt must be int32", element("Power", 1, {1, 2}, {{"iopt", zeros(5)}}));
  refused("", "Need unlj1 as last dim", element("Maxw", 1, Values(6), {{"unl", zeros(2)}, {"iopt", int32s({0, 0, 1, 1, 1})}}));
  refused("", "ir must be int32", structure({{"opt", column({lawCode("Power"), 1, 1})}, {"b", nativeSparse({1})}}));
  refused("", "Prod_Mt_u implemented for transposed sparse matrices",
          structure({{"opt", column({lawCode("Power"), 1, 1})}, {"unl", zeros(1)}, {"c", compressed(1, 1, {1})}}));
  refused("", "Add_Mt_u implemented for sparse matrices",
          structure({{"opt", column({lawCode("Power"), 1, 1})}, {"unl", zeros(1)}, {"b", zeros(1)}}));
}

TEST_P(Elements, WithoutValuesInUnlAddNothing) {
  mxArray* nothing = mxCreateNumericMatrix(1, 1, mxUINT64_CLASS, mxREAL);  // the address null
  mxArray* r = column({1});
  for (mxArray* unl : {zeros(0), pages(2, 1, 0, {}), standin::object("buffer", {{"c", nothing}})}) {
    const double index = set(1003, element("Power", 1, {1, 1}, {{"unl", unl}, {"snl", zeros(3)}}));
    run("residual", {r, handles({index}), scalar(1), scalar(1), zeros(0)}, 0);
  }
  EXPECT_EQ(values(r), (Values{1}));
  keptValues = 3;
}

TEST_P(Elements, OfAListAreComputedByFunctions) {
  int calls = 0;
  const auto law = [&](int nlhs, const standin::Arguments& args) -> std::vector<mxArray*> {
    ++calls;
    EXPECT_EQ(args.size(), 8u);
    const double unl = values(field(args[0], "unl"))[0];
    if (nlhs == 0) return {};
    return {scalar(10 * unl)};
  };
  const Values firstOfTwo{1, 0};
  const auto listElement = [&](const char* name, mxArray* callable) {
    return structure({{"c", compressed(2, 1, firstOfTwo, true)},
                      {"b", compressed(2, 1, firstOfTwo, true)},
                      {"unl", zeros(1)},
                      {name, callable},
                      {"StoreFNL", scalar(1)},
                      {"FInd", int32s({1})}});
  };
  standin::define("hapsel", law);
  mxArray* fnl = zeros(3);
  mxArray* list = cell(4, 3, {});
  mxSetCell(list, 8, listElement("Fu", standin::functionHandle(law)));
  mxSetCell(list, 10, listElement("type", standin::functionHandle(law)));
  mxSetCell(list, 11, listElement("type", text("someword")));
  mxArray* model = structure({{"K", cell(1, 3, {})}, {"NL", list}, {"FNL", fnl}});
  mxArray* r = zeros(2);
  run("residual", {r, model, column({2, 3}), zeros(2), zeros(2), column({0, 0}), zeros(0)}, 0);
  EXPECT_EQ(calls, 3);
  EXPECT_EQ(values(r), (Values{20 + 2 + 2, 0}));  // the function handle's result, then twice the observation itself
  EXPECT_EQ(values(fnl), (Values{0, 20, 0}));
  expectRefusal("8 arguments expected, got 7", "residual", {r, model, column({2, 3}), zeros(2), zeros(2), column({0, 0})});
}

TEST_P(Elements, ErrorsOfTheirFunctionsArriveUnchanged) {
  mxArray* fails =
      standin::functionHandle([](int, const standin::Arguments&) -> std::vector<mxArray*> { standin::raise("law:bad", "no force"); });
  mxArray* list = cell(1, 3, {nullptr, nullptr, structure({{"Fu", fails}, {"StoreFNL", scalar(0)}})});
  mxArray* model = structure({{"K", cell(1, 3, {})}, {"NL", list}});
  expectError("law:bad", "no force", "residual", {zeros(2), model, zeros(2), zeros(2), zeros(2), zeros(0), zeros(0)});
}

TEST_P(Elements, TextsNameTheOuterCommandAfterAFunctionMadeAnotherFail) {
  mxArray* law = standin::functionHandle([&](int, const standin::Arguments&) -> std::vector<mxArray*> {
    expectRefusal("expected 4 inputs", "tbbp");
    return {text("no number")};
  });
  mxArray* list = cell(1, 3, {nullptr, nullptr, structure({{"Fu", law}, {"b", tridiagonal(2, 2, -1)}, {"StoreFNL", scalar(0)}})});
  mxArray* model = structure({{"K", cell(1, 3, {})}, {"NL", list}});
  expectRefusal("the result of Fu must be", "residual", {zeros(2), model, zeros(2), zeros(2), zeros(2), zeros(0), zeros(0)});
}

TEST_P(Elements, FunctionsMayCallTheModuleAgain) {
  set(1, tridiagonal(2, 2, -1));
  mxArray* law = standin::functionHandle([&](int, const standin::Arguments& args) -> std::vector<mxArray*> {
    EXPECT_TRUE(quarn(0, "unknown").failed);
    const standin::Result inner = quarn(1, "chandleget", {scalar(0)});
    EXPECT_FALSE(inner.failed);
    run("residual", {args[1], handles({0}), args[3], args[4], args[5]}, 0);
    return {};
  });
  mxArray* list = cell(1, 3, {nullptr, nullptr, structure({{"Fu", law}, {"StoreFNL", scalar(0)}})});
  mxArray* r = zeros(2);
  run("residual", {r, structure({{"K", cell(1, 3, {})}, {"NL", list}}), column({1, 1}), zeros(2), zeros(0), zeros(0), zeros(0)}, 0);
  EXPECT_EQ(values(r), (Values{1, 1}));
}

const Values identity{1, 0, 0, 0, 1, 0, 0, 0, 1};

/// Two displacements and a state of the law "User", which is a function.
mxArray* userElement(const standin::Function& law) {
  return structure({{"type", scalar(1003)},
                    {"c", compressed(3, 3, identity, true)},
                    {"b", compressed(3, 3, identity, true)},
                    {"opt", column({lawCode("User"), 0, 0.5})},
                    {"unl", zeros(3)},
                    {"vnl", zeros(3)},
                    {"snl", zeros(3)},
                    {"call", standin::functionHandle(law)},
                    {"iopt", int32s({-1, 2, 2, 1, 1})}});
}

TEST_P(Elements, LawsOfTheUserAreFunctionsOfDisplacementVelocityStateAndTime) {
  mxArray* value = userElement([](int nlhs, const standin::Arguments& args) -> std::vector<mxArray*> {
    EXPECT_EQ(nlhs, 2);
    const Values x = values(args[0]);
    const Values v = values(args[1]);
    const Values s = values(args[2]);
    return {column({2 * x[0] + s[0], 3 * x[1] + v[1]}), column({s[0] + v[0] + values(args[3])[0]})};
  });
  const double h = set(1003, value);
  keptValues = 1;
  mxArray* r = zeros(3);
  mxArray* u = column({1, 2, 10});
  run("residual", {r, handles({h}), u, column({4, 5, 0}), zeros(0)}, 0);
  EXPECT_EQ(values(r), (Values{2 + 10, 6 + 5, 0}));
  EXPECT_EQ(values(u)[2], 14.0);
  NewmarkRun n = newmarkRun();
  n.u = column({1, 0});
  n.v = column({1, 0});
  const standin::Function fails = [](int, const standin::Arguments& args) -> std::vector<mxArray*> {
    EXPECT_GT(values(args[3])[0], 0.0);  // in a run there is a time
    EXPECT_EQ(mxGetNumberOfElements(args[2]), 0U);
    standin::raise("law:bad", "no force");
  };
  mxArray* oneRow =
      element("User", 2, {0, 0}, {{"unl", zeros(1)}, {"vnl", zeros(1)}, {"snl", zeros(1)}, {"call", standin::functionHandle(fails)}});
  expectError("law:bad", "no force", "chandlediagnewmark", n.arguments(cell(1, 2, {n.integrator, oneRow})));
}

TEST_P(Elements, LawsOfTheUserEndTheCallWhoseHandlesTheyFreeOrUse) {
  double h = 0;
  mxArray* release = userElement([&](int, const standin::Arguments&) -> std::vector<mxArray*> {
    run("chandleclear", {scalar(h)}, 0);
    return {zeros(2), zeros(1)};
  });
  h = set(1003, release);
  keptValues = 1;
  expectRefusal("a handle of the call that waits for it, at t = 0 s", "residual", {zeros(3), handles({h}), zeros(3), zeros(3), zeros(0)});
}

TEST_P(Elements, LawsOfTheUserNeedALibraryOrAFunctionThatReturnsNumbers) {
  const auto refused = [&](const char* text, const standin::Function& law) {
    expectRefusal(text, "residual", {zeros(3), handles({set(1003, userElement(law))}), zeros(3), zeros(3), zeros(0)});
  };
  keptValues = 4;
  refused("must return 2 forces, full and real, got double 3x1 at t = 0 s", [](int, const standin::Arguments&) -> std::vector<mxArray*> {
    return {zeros(3), zeros(1)};
  });
  refused("must return 1 states, full and real, got char 1x1", [](int, const standin::Arguments&) -> std::vector<mxArray*> {
    return {zeros(2), text("1")};
  });
  refused("gives NaN as force 2 at t = 0 s, where x(1) = 0 and v(1) = 0", [](int, const standin::Arguments&) -> std::vector<mxArray*> {
    return {column({0, std::nan("")}), zeros(1)};
  });
  refused("gives -Inf as state 1", [](int, const standin::Arguments&) -> std::vector<mxArray*> { return {zeros(2), scalar(-HUGE_VAL)}; });
}

}  // namespace
