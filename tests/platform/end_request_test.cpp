#include "platform/end_request.h"

#include <gtest/gtest.h>
#include <poll.h>

#include <csignal>

#include "support/child_process.h"

namespace tavimor {
namespace {

bool hasRequest(int descriptor) {
  pollfd waiting{descriptor, POLLIN, 0};
  return poll(&waiting, 1, 0) == 1;
}

class EndRequest : public testing::TestWithParam<int> {
 protected:
  EndRequest() { test::heedEndRequests(); }
  ~EndRequest() override { test::heedEndRequests(); }  // whatever a test has it catch
};

TEST_P(EndRequest, BecomesReadableInsteadOfKilling) {
  const int requests = watchEndRequests();
  ASSERT_GE(requests, 0);
  EXPECT_FALSE(hasRequest(requests));
  EXPECT_FALSE(endIsRequested());
  std::raise(GetParam());
  EXPECT_TRUE(hasRequest(requests));
  EXPECT_TRUE(endIsRequested());
}

TEST_P(EndRequest, StaysIgnoredWhereItWasIgnored) {
  std::signal(GetParam(), SIG_IGN);
  const int requests = watchEndRequests();
  std::raise(GetParam());
  EXPECT_FALSE(hasRequest(requests));
  EXPECT_FALSE(endIsRequested());
}

INSTANTIATE_TEST_SUITE_P(Signals, EndRequest, testing::Values(SIGTERM, SIGINT, SIGHUP));

}  // namespace
}  // namespace tavimor
