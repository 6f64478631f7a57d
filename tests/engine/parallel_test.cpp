#include "engine/parallel.h"

#include <gtest/gtest.h>

#ifndef _WIN32
#include <sys/resource.h>
#endif

#include <atomic>
#include <thread>

#include "engine/fit.h"
#include "support/child_process.h"
#include "support/problem.h"

namespace tavimor {
namespace {

TEST(Parallel, EachPartIsDoneOnce) {
  for (const int threads : {0, 1, 3, 8}) {
    std::vector<std::atomic<int>> done(100);
    inParallel(done.size(), 1e9, threads, [&](std::size_t first, std::size_t end) {
      for (std::size_t n = first; n < end; ++n) ++done[n];
    });
    for (const auto& times : done) EXPECT_EQ(times, 1);
  }
}

#ifndef _WIN32  // it knows no such limit

// In a process that may have no second thread.
class WithoutThreads : public testing::Test {
 protected:
  static int exitCode(const std::function<void()>& action) {
    return test::exitCodeOfChild([&] {
      const rlimit none = {0, 0};
      setrlimit(RLIMIT_NPROC, &none);
      test::becomeOrdinaryUser();
      try {
        std::thread([] {}).join();
      } catch (const std::system_error&) {
        action();
      }
      _exit(test::kChildFailed);  // there are threads after all
    });
  }
};

TEST_F(WithoutThreads, TheCallingOneDoesTheWork) {
  EXPECT_EQ(exitCode([] {
              std::size_t done = 0;
              inParallel(100, 1e9, 4, [&](std::size_t first, std::size_t end) { done += end - first; });
              _exit(done == 100 ? 0 : 1);
            }),
            0);
}

TEST_F(WithoutThreads, AFitIsTheSame) {
  std::vector<double> values(30000);
  for (std::size_t n = 0; n < values.size(); ++n) values[n] = static_cast<double>(n) / 30000 - 0.5;
  Dimension model = test::problem({{"x", values, 20, 0}});
  test::tabulate(model, [](double x, double, double, double) { return 3 + 2 * x; });
  const FitOutcome wanted = fit(model);
  EXPECT_EQ(exitCode([&] {
              const FitOutcome outcome = fit(model);
              const bool isSame =
                  std::equal(outcome.fit.Coef.data(), outcome.fit.Coef.data() + 21, wanted.fit.Coef.data());
              _exit(outcome.end == FitEnd::Found && isSame ? 0 : 1);
            }),
            0);
}

#endif

}  // namespace
}  // namespace tavimor
