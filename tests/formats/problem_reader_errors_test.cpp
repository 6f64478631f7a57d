#include <gtest/gtest.h>

#include <filesystem>

#include "support/expect_error.h"
#include "support/pair_files.h"
#include "support/stored_problems.h"

namespace tavimor {
namespace {

constexpr const char* kSpecification = "1\n\"x\",0,1,*,#FALSE#,0,2\n\"y\",0,2,1,#FALSE#,0,1\n#TRUE#\n1,2,3,4,5,6\n";
constexpr const char* kValues = "1\n2\n#TRUE#\n1\n#FALSE#\n0,.5,1\n0,2\n1,2,3,4,5,6\n6,.998,.012,.5,2.5,2.5\n";

struct Malformed {
  const char* name;
  const char* file;  // "p" or "p.dat": one of the two is malformed
  const char* bytes;
  const char* reason;
};

const Malformed kMalformed[] = {
    {"AnEmptySpecification", "p", "",
     "line 1: expected the number of variables less one (a number), found the end of the file"},
    {"FiveVariables", "p", "4\n",
     "line 1: expected the number of variables less one (a whole number from 0 to 3), found \"4\""},
    {"NoVariables", "p", "-1\n",
     "line 1: expected the number of variables less one (a whole number from 0 to 3), found \"-1\""},
    {"ANumberOfVariablesThatIsText", "p", "two\n",
     "line 1: expected the number of variables less one (a number), found \"two\""},
    {"ASpecificationThatEndsBeforeItsRecords", "p", "1\n",
     "line 2: expected the name of a variable, found the end of the file"},
    {"ANameWithoutItsClosingQuote", "p", "0\n\"x,0,1,*,#FALSE#,0,2\n#FALSE#\n",
     "line 2: expected the name of a variable with a closing quotation mark, found \"\"x,0,1,*,#FALSE#,0,2\" and no "
     "such mark"},
    {"ALowerLimitThatIsText", "p", "0\nx,low,1,*,#FALSE#,0,2\n#FALSE#\n",
     "line 2: expected the lower limit (a number), found \"low\""},
    {"AnUpperLimitThatIsMissing", "p", "0\nx,0,,*,#FALSE#,0,2\n#FALSE#\n",
     "line 2: expected the upper limit (a number), found nothing"},
    {"LimitsWithoutAMiddle", "p", "0\nx,1E308,1.7E308,*,#FALSE#,0,2\n#FALSE#\n",
     "line 2: expected a number as the centre of expansion, since the limits have no middle, found \"*\""},
    {"APeriodFlagThatIsANumber", "p", "0\nx,0,1,*,0,0,2\n#FALSE#\n",
     "line 2: expected the period flag (#TRUE# or #FALSE#), found \"0\""},
    {"ANegativeDegree", "p", "0\nx,0,1,*,#FALSE#,0,-2\n#FALSE#\n",
     "line 2: expected the degree (a whole number from 0 to 2147483646), found \"-2\""},
    {"ADegreeThatNoLongHolds", "p", "0\nx,0,1,*,#FALSE#,0,1E10\n#FALSE#\n",
     "line 2: expected the degree (a whole number from 0 to 2147483646), found \"1E10\""},
    {"AFitFlagThatIsMissing", "p", "0\nx,0,1,*,#FALSE#,0,2\n",
     "line 3: expected whether there is a fit, found the end of the file"},
    {"AFitFlagThatIsText", "p", "0\nx,0,1,*,#FALSE#,0,2\nyes\n",
     "line 3: expected whether there is a fit (#TRUE# or #FALSE#), found \"yes\""},
    {"MoreCoefficientsThanTheFileHolds", "p", "0\nx,0,1,*,#FALSE#,0,2000000000\n#TRUE#\n1\n2\n",
     "line 4: expected 2000000001 coefficients, found room for 2 at most"},
    {"MoreCoefficientsThanAnyFileHolds", "p",
     "3\nx,0,1,*,#FALSE#,0,2147483646\ny,0,1,*,#FALSE#,0,2147483646\nz,0,1,*,#FALSE#,0,2147483646\n"
     "w,0,1,*,#FALSE#,0,2147483646\n#TRUE#\n1\n2\n",
     "line 7: expected more coefficients than can be counted, found room for 2 at most"},
    {"OneCoefficientTooFew", "p", "0\nx,0,1,*,#FALSE#,0,2\n#TRUE#\n1 \n 2 \n",
     "line 6: expected a coefficient (a number), found the end of the file"},
    {"ACoefficientThatIsText", "p", "0\nx,0,1,*,#FALSE#,0,2\n#TRUE#\n1 \n c \n3\n",
     "line 5: expected a coefficient (a number), found \"c\""},
    {"OneCoefficientTooMany", "p", "0\nx,0,1,*,#FALSE#,0,2\n#TRUE#\n1\n2\n3\n\n4\n",
     "line 8: expected the end of the file, found \"4\""},
    {"CoefficientsWithoutAFit", "p", "0\nx,0,1,*,#FALSE#,0,2\n#FALSE#\n1\n",
     "line 4: expected the end of the file, found \"1\""},
    {"AnEmptyValuesFile", "p.dat", "",
     "line 1: expected the number of variables less one (a number), found the end of the file"},
    {"FiveVariablesInTheValuesFile", "p.dat", "4\n",
     "line 1: expected the number of variables less one (a whole number from 0 to 3), found \"4\""},
    {"ANegativeCount", "p.dat", "1\n-1\n#TRUE#\n",
     "line 2: expected the number of values less one (a whole number from 0 to 2147483646), found \"-1\""},
    {"ASpacingFlagThatIsText", "p.dat", "1\n2\nyes\n",
     "line 3: expected whether the values are equally spaced (#TRUE# or #FALSE#), found \"yes\""},
    {"MoreValuesThanTheFileHolds", "p.dat", "1\n2\n#TRUE#\n1000000000\n#FALSE#\n0,.5,1\n0,2\n",
     "line 6: expected 3000000003 function values, found room for 6 at most"},
    {"MoreValuesThanAnyFileHolds", "p.dat",
     "3\n2147483646\n#TRUE#\n2147483646\n#TRUE#\n2147483646\n#TRUE#\n2147483646\n#TRUE#\n1\n",
     "line 10: expected more function values than can be counted, found room for 1 at most"},
    {"AValueThatIsText", "p.dat", "1\n2\n#TRUE#\n1\n#FALSE#\n0,half,1\n0,2\n1,2,3,4,5,6\n",
     "line 6: expected a value of a variable (a number), found \"half\""},
    {"AFunctionValueTooFew", "p.dat", "1\n2\n#TRUE#\n1\n#FALSE#\n0,.5,1\n0,2\n1,2,3,4,5\n",
     "line 9: expected a value of the function (a number), found the end of the file"},
    {"AFunctionValueThatIsText", "p.dat", "1\n2\n#TRUE#\n1\n#FALSE#\n0,.5,1\n0,2\n1,2,3,4,5,1.2.3\n",
     "line 8: expected a value of the function (a number), found \"1.2.3\""},
    {"StatisticsThatAreMissing", "p.dat", "1\n2\n#TRUE#\n1\n#FALSE#\n0,.5,1\n0,2\n1,2,3,4,5,6\n",
     "line 9: expected the number of grid points (a number), found the end of the file"},
    {"StatisticsThatEndEarly", "p.dat", "1\n2\n#TRUE#\n1\n#FALSE#\n0,.5,1\n0,2\n1,2,3,4,5,6\n6,.9,.1,.5,2\n",
     "line 10: expected the average of the estimated values (a number), found the end of the file"},
    {"ANumberOfGridPointsThatNoLongHolds", "p.dat",
     "1\n2\n#TRUE#\n1\n#FALSE#\n0,.5,1\n0,2\n1,2,3,4,5,6\n6E20,.9,.1,.5,2,2\n",
     "line 9: expected the number of grid points (a whole number from -2147483648 to 2147483647), found \"6E20\""},
    {"SomethingBehindTheStatistics", "p.dat",
     "1\n2\n#TRUE#\n1\n#FALSE#\n0,.5,1\n0,2\n1,2,3,4,5,6\n6,.9,.1,.5,2,2\n\nand more\n",
     "line 11: expected the end of the file, found \"and more\""},
};

class MalformedProblem : public test::PairTest, public testing::WithParamInterface<Malformed> {};

TEST_P(MalformedProblem, IsRefusedWithItsReason) {
  writePair(kSpecification, kValues);
  test::writeBytes(folder / GetParam().file, GetParam().bytes);
  try {
    readProblem(path());
    ADD_FAILURE() << "no error";
  } catch (const BadFile& error) {
    EXPECT_EQ(error.report(), GetParam().reason);
    EXPECT_EQ(error.path(), folder / GetParam().file);
  }
}

INSTANTIATE_TEST_SUITE_P(ProblemReader, MalformedProblem, testing::ValuesIn(kMalformed),
                         [](const auto& input) { return std::string(input.param.name); });

class ProblemReaderErrors : public test::PairTest {};

TEST_F(ProblemReaderErrors, ThePairThatTheMalformedOnesStartFromIsRead) {
  writePair(kSpecification, kValues);
  EXPECT_EQ(read().AvgEstimated, 2.5);
}

// That the last number itself is cut off cannot be told.
TEST_F(ProblemReaderErrors, AFileThatEndsBeforeItsLastFieldIsRefused) {
  writePair(kSpecification, kValues);
  const Dimension whole = read();
  for (const auto& [name, bytes] :
       {std::pair("p", std::string(kSpecification)), std::pair("p.dat", std::string(kValues))}) {
    writePair(kSpecification, kValues);
    for (std::size_t size = 0; size <= bytes.rfind(',') + 1; ++size) {
      test::writeBytes(folder / name, bytes.substr(0, size));
      EXPECT_THROW(read(), BadFile) << name << " cut at " << size;
    }
    test::writeBytes(folder / name, bytes.substr(0, bytes.size() - 1));
    test::expectSameProblem(read(), whole);
  }
}

TEST_F(ProblemReaderErrors, AMissingFileIsARunTimeErrorWithItsPath) {
  const auto expectMissing = [&](const std::string& missing) {
    try {
      readProblem(path());
      ADD_FAILURE() << "no error";
    } catch (const RunTimeError& error) {
      EXPECT_EQ(error.number(), ErrorNumber::FileNotFound);
      EXPECT_EQ(error.path(), missing);
    }
  };
  expectMissing(folder / "p");
  test::writeBytes(folder / "p", kSpecification);
  expectMissing(folder / "p.dat");
}

TEST_F(ProblemReaderErrors, AFolderIsNoProblem) {
  test::expectError(ErrorNumber::PathFileAccess, [&] { readProblem(folder.path()); });
}

}  // namespace
}  // namespace tavimor
