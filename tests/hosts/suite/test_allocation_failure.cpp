// Every allocation of a call fails once: the call ends with the host's error, nothing stays behind, and the handles are as they were.
#include <exception>
#include <functional>
#include <stdexcept>
#include <system_error>

#include "failing_new.h"
#include "fixture.h"
#include "setups.h"

namespace {

using namespace build;

class AllocationFailure : public OnMatlab {
 protected:
  using Arguments = std::function<standin::Arguments()>;

  /// Runs the command with its 1st, 2nd, ... allocation failing until it succeeds. added: handles that it registers.
  void failEach(const char* command, const Arguments& arguments, int nlhs = 1, std::size_t added = 0) {
    SCOPED_TRACE(command);
    const Values keys = values(run("chandleget"));
    const standin::Live before = standin::live();
    long failures = 0;
    for (long k = 1;; ++k) {
      ASSERT_LT(k, 1000);
      const standin::Arguments args = arguments();
      standin::failAllocation(k);
      const standin::Result result = quarn(nlhs, command, args);
      const bool reached = standin::allocations() >= k;
      standin::failAllocation(0);
      if (!reached) {
        EXPECT_FALSE(result.failed) << result.text;
        break;
      }
      ++failures;
      EXPECT_TRUE(result.failed) << "allocation " << k;
      EXPECT_EQ(result.identifier, "MATLAB:nomem");
      EXPECT_EQ(result.text, "Out of memory.");
      EXPECT_EQ(values(run("chandleget")), keys) << "after allocation " << k;
      EXPECT_EQ(standin::live().persistentArrays, before.persistentArrays) << "after allocation " << k;
      EXPECT_EQ(standin::live().persistentBlocks, before.persistentBlocks) << "after allocation " << k;
    }
    EXPECT_GT(failures, 0) << "the command allocates nothing: there is nothing to see";
    EXPECT_EQ(values(run("chandleget")).size(), keys.size() + added);
    EXPECT_EQ(standin::live().persistentArrays, before.persistentArrays + added);
  }
};

INSTANTIATE_TEST_SUITE_P(Errors, AllocationFailure, testing::Values(standin::Errors::unwind, standin::Errors::jump),
                         [](const auto& p) { return p.param == standin::Errors::jump ? "Jumping" : "Unwinding"; });

mxArray* stiffness() { return tridiagonal(3, 2, -1); }

TEST_P(AllocationFailure, OfServiceCommands) {
  for (const char* command : {"ismex", "cvs", "omp", "version"}) failEach(command, [] { return standin::Arguments{}; });
}

TEST_P(AllocationFailure, OfEnergies) {
  const auto arguments = [] {
    return standin::Arguments{zeros(3, 2), zeros(3), zeros(3), column({0.1, 0.5}), zeros(3), zeros(3), zeros(3, 1), zeros(1, 2)};
  };
  for (int nlhs = 1; nlhs < 4; ++nlhs) failEach("energies", arguments, nlhs);
}

TEST_P(AllocationFailure, OfRegistryCommands) {
  set(1, stiffness());
  failEach("chandleget", [] { return standin::Arguments{}; });
  failEach("chandleget", [] { return standin::Arguments{scalar(0)}; });
  standin::define("first", [](int, const standin::Arguments& args) -> std::vector<mxArray*> { return {const_cast<mxArray*>(args[0])}; });
  failEach("chandleget", [] { return standin::Arguments{text("first"), scalar(0), zeros(2)}; });
  constexpr int everyType[] = {1, 2, 3, 1003, 2000};
  keptValues = 1;  // that of type 1003
  for (const int type : everyType) {
    failEach(
        "chandleset",
        [type] {
          return standin::Arguments{scalar(type), stiffness()};
        },
        1, 1);
  }
  failEach(
      "chandleset",
      [] {
        return standin::Arguments{scalar(3), standin::object("thing", {{"a", cell(1, 2, {zeros(3), nullptr})}})};
      },
      1, 1);
  EXPECT_EQ(values(field(run("chandleget", {scalar(0)}), "pr")), values(field(stiffness(), "pr")));
}

TEST_P(AllocationFailure, OfResiduals) {
  const double index = set(1003, element("Power", 3, {2, 3}, {{"unl", zeros(1)}, {"snl", zeros(1)}}));
  const double second = set(2, stiffness());
  keptValues = 1;
  failEach(
      "residual",
      [&] {
        return standin::Arguments{zeros(3), handles({index, second}), zeros(3), zeros(3), zeros(3)};
      },
      0);
  failEach(
      "residual",
      [&] {
        mxArray* K = standin::object("v_handle", {{"file", stiffness()}});
        return standin::Arguments{zeros(3), cell(1, 3, {stiffness(), nullptr, K}), zeros(3), zeros(3), zeros(3)};
      },
      2);
  standin::define("hapsel", [](int, const standin::Arguments&) -> std::vector<mxArray*> { return {}; });
  failEach(
      "residual",
      [&] {
        const Values first{1, 0, 0};
        mxArray* e = structure(
            {{"c", compressed(3, 1, first, true)}, {"b", compressed(3, 1, first, true)}, {"unl", zeros(1)}, {"type", text("someword")}});
        mxArray* model = structure({{"K", cell(1, 3, {})}, {"NL", cell(1, 3, {nullptr, nullptr, e})}});
        return standin::Arguments{zeros(3), model, zeros(3), zeros(3), zeros(3), zeros(0), zeros(0)};
      },
      0);
}

TEST_P(AllocationFailure, OfTheIntegrator) {
  failEach(
      "chandlediagnewmark",
      [] {
        const NewmarkRun n = newmarkRun(2, 5);
        mxArray* nl = element("Power", 2, {1, 3}, {{"unl", zeros(1)}, {"snl", zeros(1)}});
        return n.arguments(cell(1, 3, {n.integrator, listMatrix(1, {1, 4}), nl}));
      },
      0);
  failEach(
      "chandlediagnewmark",
      [] {
        const NewmarkRun n = newmarkRun(2, 5);
        mxArray* coupled = withField(n.integrator, "gain", matrix(2, 2, {0.1, 0.01, -0.01, 0.1}));
        return n.arguments(cell(1, 2, {coupled, listMatrix(1, {1, 4})}));
      },
      0);
  failEach(
      "chandlediagnewmark",
      [] {
        const NewmarkRun n = newmarkRun(2, 5);
        mxArray* paged = withField(withField(n.integrator, "gain", pages(2, 2, 2, numbers(8, 0.1, 0.01))), "gaint", matrix(1, 2, {0, 1}));
        return n.arguments(cell(1, 2, {paged, withField(listMatrix(1, {1, 4}), "factor", matrix(2, 2, {0, 1, 1, 2}))}));
      },
      0);
  const NewmarkRun n = newmarkRun(2, 5);
  const double integrator = set(2000, n.integrator);
  const double matrix = set(1, listMatrix(1, {1, 4}));
  failEach(
      "chandlediagnewmark",
      [&] {
        return newmarkRun(2, 5).arguments(handles({integrator, matrix}));
      },
      0);
}

TEST_P(AllocationFailure, OfMatrixCommands) {
  failEach("c<-a'*b", [] { return standin::Arguments{zeros(3, 2), stiffness()}; });
  failEach(
      "c<-a'*b",
      [] {
        mxArray* square = zeros(3, 3);
        return standin::Arguments{square, stiffness(), square};
      },
      0);
  failEach("abc", [] { return standin::Arguments{zeros(3, 2), stiffness(), complexMatrix(3, 2, {}, {}), int32s({1, 0, 0})}; });
  failEach("directzr", [] {
    return standin::Arguments{complexMatrix(1, 1, {1}, {1}), cell(1, 1, {zeros(1)}), complexMatrix(1, 1, {1}, {1}), zeros(1)};
  });
  failEach("dtkt", [] { return standin::Arguments{zeros(2, 0), nativeSparse({1, 2})}; });
  failEach("igsm", [] { return standin::Arguments{zeros(2, 0), nativeSparse({1, 2})}; });
  failEach(
      "tbbp",
      [] {
        return standin::Arguments{standin::object("v_handle", {{"file", stiffness()}}), zeros(3), zeros(3)};
      },
      0);
  failEach(
      "setsparse",
      [] {
        return standin::Arguments{standin::object("v_handle", {{"file", stiffness()}}), int32s({0})};
      },
      0);
}

TEST_P(AllocationFailure, OfCommandsThatAllocateNothing) {
  set(1, stiffness());
  const auto called = [&](const char* command, const standin::Arguments& args) {
    standin::failAllocation(1);
    const standin::Result result = quarn(0, command, args);
    EXPECT_EQ(standin::allocations(), 0) << command;
    standin::failAllocation(0);
    return result;
  };
  EXPECT_FALSE(called("nlv1", {structure({{"unl", zeros(1)}})}).failed);
  EXPECT_FALSE(called("chandleclear", {scalar(0)}).failed);
  EXPECT_EQ(called("ta'*k*tb", {zeros(2), nativeSparse({1, 2}), zeros(2)}).text, "ir problem");
}

TEST_P(AllocationFailure, OfTheRegistrysOwnNodes) {
  set(1, stiffness());
  failNew(1);
  const standin::Result result = quarn(1, "chandleset", {scalar(1), stiffness()});
  ASSERT_EQ(newCalls(), 1);
  failNew(0);
  EXPECT_TRUE(result.failed);
  EXPECT_EQ(result.text, "quarn chandleset : out of memory");
  EXPECT_EQ(standin::live().persistentArrays, 1u);
  EXPECT_EQ(standin::live().persistentBlocks, 1u);
  failNew(1);
  expectError("", "quarn chandleget : out of memory", "chandleget", {scalar(50)}, 1);  // a lookup inserts its key
  failNew(0);
  EXPECT_EQ(values(run("chandleget")), (Values{0}));
  EXPECT_EQ(set(1, stiffness()), 2.0);  // the index of the failed call is used up
}

TEST_P(AllocationFailure, OtherExceptionsOfTheStandardLibraryEndTheCallWithTheirText) {
  set(1, stiffness());
  const auto busy = std::make_error_code(std::errc::resource_unavailable_try_again);
  failNew(1, std::make_exception_ptr(std::length_error("more than a container holds")));
  expectError("", "quarn chandleget : more than a container holds", "chandleget", {scalar(50)}, 1);
  failNew(1, std::make_exception_ptr(std::system_error(busy, "no thread")));
  expectError("", ("quarn chandleget : no thread: " + busy.message()).c_str(), "chandleget", {scalar(50)}, 1);
  failNew(0);
  EXPECT_EQ(values(run("chandleget")), (Values{0}));
}

TEST_P(AllocationFailure, OfTheWorkerThreads) {
  mxArray* A = manyEntries();
  mxArray* x = column(Values(manyLines, 0.5));
  mxArray* y = zeros(manyLines);
  double sum = 0.0;
  for (long k = 1, calls = k; calls >= k; ++k) {
    failNew(k);
    run("tbbp", {A, x, y}, 0);  // threads that cannot be made are done without
    calls = newCalls();
    failNew(0);
    sum += 100.0;
    ASSERT_EQ(mxGetPr(y)[0], sum);
    module.clear();
  }
}

TEST_P(AllocationFailure, OfThePresenceCall) {
  run("ismex");
  standin::failAllocation(1);
  const standin::Result result = module(1, {});
  standin::failAllocation(0);
  EXPECT_TRUE(result.failed);
  EXPECT_EQ(result.text, "Out of memory.");
  EXPECT_EQ(mxGetScalar(module(1, {}).out[0]), 1.0001);
}

}  // namespace
