#include <gmock/gmock.h>

#include "exported_program.h"
#include "random_fits.h"

namespace tavimor {
namespace {

TEST(ExportFormats, AreFoundByName) {
  for (const ExportFormat& format : exportFormats()) EXPECT_EQ(exportFormat(format.name), &format);
  EXPECT_EQ(exportFormat("cobol"), nullptr);
}

TEST(FormulaName, IsTheLastPartOfThePathWithoutItsEnding) {
  EXPECT_EQ(formulaNameOf("/tmp/my.fits/heat-index.2"), "heat-index");
  EXPECT_EQ(formulaNameOf("ozone"), "ozone");
}

}  // namespace
}  // namespace tavimor
