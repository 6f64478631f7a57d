#include "ui/controls/polite_end.h"

#include <gtest/gtest.h>

#include <QPointer>
#include <QTest>
#include <csignal>

#include "platform/end_request.h"

namespace tavimor {
namespace {

class PoliteEnd : public testing::Test {
 protected:
  ~PoliteEnd() override { std::signal(SIGTERM, SIG_DFL); }
};

TEST_F(PoliteEnd, UnloadsTheForm) {
  const QPointer<Form> form = new Form(QStringLiteral("form"));
  unloadOnEndRequest(*form, watchEndRequests());
  std::raise(SIGTERM);
  EXPECT_TRUE(form->isOpen());
  EXPECT_TRUE(QTest::qWaitFor([&] { return form.isNull(); }));
}

TEST_F(PoliteEnd, IsAskedForOnceEvenByTwoSignals) {
  const QPointer<Form> form = new Form(QStringLiteral("form"));
  unloadOnEndRequest(*form, watchEndRequests());
  std::raise(SIGTERM);
  std::raise(SIGTERM);
  EXPECT_TRUE(QTest::qWaitFor([&] { return form.isNull(); }));
}

}  // namespace
}  // namespace tavimor
