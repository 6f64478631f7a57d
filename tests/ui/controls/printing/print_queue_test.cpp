#include "ui/controls/printing/print_queue.h"

#include <gtest/gtest.h>

#include <QLibrary>

namespace tavimor {
namespace {

#if defined(Q_OS_UNIX) && !defined(Q_OS_MACOS)

// The library that the toolkit's printing plug-in links, told to reach a server where none listens.
TEST(PrintQueue, HasNotTakenAJobThatFoundNoServer) {
  using SetServer = void (*)(const char*);
  using PrintFile = int (*)(const char* name, const char* file, const char* title, int optionCount, void* options);
  constexpr int version = 2;
  const auto setServer = reinterpret_cast<SetServer>(QLibrary::resolve("cups", version, "cupsSetServer"));
  const auto printFile = reinterpret_cast<PrintFile>(QLibrary::resolve("cups", version, "cupsPrintFile"));
  ASSERT_TRUE(setServer != nullptr && printFile != nullptr);
  setServer("localhost:1");
  EXPECT_EQ(printFile("office", __FILE__, "report", 0, nullptr), 0);
  EXPECT_FALSE(queueTookLastJob());
  setServer(nullptr);
}

#endif

}  // namespace
}  // namespace tavimor
