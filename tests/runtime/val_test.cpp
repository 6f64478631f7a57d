#include "runtime/val.h"

#include <gtest/gtest.h>

namespace tavimor {
namespace {

TEST(Val, ACommaEndsTheNumeral) { EXPECT_EQ(Val("1,5"), 1.0); }

}  // namespace
}  // namespace tavimor
