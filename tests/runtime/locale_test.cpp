// No text that the program reads or writes depends on the locale.
#include <gtest/gtest.h>

#include <clocale>
#include <locale>

#include "runtime/input_file.h"
#include "runtime/number_text.h"
#include "runtime/output_file.h"
#include "runtime/run_time_error.h"
#include "runtime/val.h"
#include "support/files.h"
#include "support/temporary_folder.h"

namespace tavimor {
namespace {

class CommaAndGroups : public std::numpunct<char> {
  char do_decimal_point() const override { return ','; }
  char do_thousands_sep() const override { return '.'; }
  std::string do_grouping() const override { return "\3"; }
};

class DecimalComma : public test::FolderTest {
 protected:
  DecimalComma() : before_(std::locale::global(std::locale(std::locale::classic(), new CommaAndGroups))) {
    for (const char* name : {"de_DE.UTF-8", "de_DE.utf8", "fr_FR.UTF-8", "German"})
      if (std::setlocale(LC_ALL, name) != nullptr) break;
  }
  ~DecimalComma() override {
    std::setlocale(LC_ALL, "C");
    std::locale::global(before_);
  }

 private:
  std::locale before_;
};

TEST_F(DecimalComma, LeavesNumberTextsAsTheyAre) {
  EXPECT_EQ(numberText(1234567.5), "1234567.5");
  EXPECT_EQ(numberText(1e15), "1E+15");
  EXPECT_EQ(printedNumber(Long{1234567}), " 1234567 ");
  EXPECT_EQ(RunTimeError(ErrorNumber::ScriptReported).report().substr(0, 29), "Run-time error '-2147352319':");
}

TEST_F(DecimalComma, LeavesReadingAsItIs) {
  EXPECT_EQ(Val("1.5"), 1.5);
  EXPECT_EQ(Val("1,5"), 1);
  EXPECT_EQ(Val("0.12345678901234567890123"), 0.12345678901234567890123);
  EXPECT_EQ(Val("1.234.567"), 1.234);
  EXPECT_FALSE(IsNumeric("1,5"));
}

TEST_F(DecimalComma, LeavesFilesAsTheyAre) {
  OutputFile output(folder / "file", systemFileSteps());
  output.print(-1234.5);
  output.write(0.25, Long{1000});
  output.finish();
  EXPECT_EQ(test::readBytes(folder / "file"), "-1234.5 \r\n.25,1000\r\n");
  InputFile input(folder / "file");
  EXPECT_EQ(input.readDouble("a number"), -1234.5);
  EXPECT_EQ(input.readDouble("a number"), 0.25);
  EXPECT_EQ(input.readLong("a number"), 1000);
}

}  // namespace
}  // namespace tavimor
