#pragma once

#include <gmock/gmock.h>

#include "analysis/pictures/pictured_fits.h"

/// What the tests of pictures begin with.
namespace tavimor {

using test::pictured;
using test::roughProblem;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

}  // namespace tavimor
