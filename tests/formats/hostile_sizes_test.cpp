// A file may declare any size; memory is taken only for what the file can hold.
#include <gtest/gtest.h>

#include "engine/fit.h"
#include "support/allocation_meter.h"
#include "support/expect_error.h"
#include "support/pair_files.h"

namespace tavimor {
namespace {

constexpr std::size_t kFixedBytes =
    std::size_t{64} * 1024;  // what any reading takes: two small windows, paths, messages

class HostileSizes : public test::PairTest {
 protected:
  void expectRefusedWithLittleMemory(const std::string& specification, const std::string& values) {
    writePair(specification, values);
    test::resetAllocations();
    EXPECT_THROW(readProblem(path()), BadFile);
    EXPECT_LT(test::allocatedBytes(), kFixedBytes + 20 * (specification.size() + values.size()));
  }
};

constexpr const char* kValues = "0\n1\n#TRUE#\n0\n1\n8\n9\n2,0,0,0,0,0\n";

TEST_F(HostileSizes, TheMeterCounts) {
  test::resetAllocations();
  const std::vector<double> numbers(1000);
  EXPECT_GE(test::allocatedBytes(), numbers.size() * sizeof(double));
}

TEST_F(HostileSizes, AHugeDegreeTakesNoMemory) {
  for (const char* degree : {"100000", "2147483646"})
    expectRefusedWithLittleMemory(std::string("0\nx,0,1,0,#FALSE#,0,") + degree + "\n#TRUE#\n1,2,3\n", kValues);
}

TEST_F(HostileSizes, AHugeDegreeTakesNoMemoryInAFit) {
  for (const char* degree : {"1024", "100000", "2147483646"}) {
    writePair(std::string("0\nx,0,1,0,#FALSE#,0,") + degree + "\n#FALSE#\n", "0\n1\n#TRUE#\n0\n1\n8\n9\n");
    const StoredProblem stored = readProblem(path());
    test::resetAllocations();
    EXPECT_EQ(fit(stored.problem).ErrNumber, static_cast<Long>(ErrorNumber::OutOfMemory));
    EXPECT_LT(test::allocatedBytes(), kFixedBytes);
  }
}

TEST_F(HostileSizes, HugeDegreesOfSeveralVariablesTakeNoMemory) {
  for (const char* degree : {"1000", "65535", "2147483646"}) {
    const std::string record = std::string("x,0,1,0,#FALSE#,0,") + degree + "\n";
    expectRefusedWithLittleMemory("3\n" + record + record + record + record + "#TRUE#\n1,2,3\n", kValues);
  }
}

TEST_F(HostileSizes, AHugeCountTakesNoMemory) {
  for (const char* last : {"100000", "2147483646"})
    expectRefusedWithLittleMemory("0\nx,0,1,0,#FALSE#,0,1\n#FALSE#\n", std::string("0\n") + last + "\n#TRUE#\n1,2\n");
}

// The product wraps around to a small number in 64 bits.
TEST_F(HostileSizes, CountsWhoseProductWrapsAroundTakeNoMemory) {
  const std::string count = "65535\n#TRUE#\n";
  expectRefusedWithLittleMemory("0\nx,0,1,0,#FALSE#,0,1\n#FALSE#\n", "3\n" + count + count + count + count + "1,2,3\n");
}

// Each list alone could be there, not all of them with the function.
TEST_F(HostileSizes, ManyNumbersThatAreNotThereTakeMemoryInProportionToTheFile) {
  const std::string blanks(20000, ' ');
  expectRefusedWithLittleMemory("0\nx,0,1,0,#FALSE#,0,1\n#FALSE#\n", "0\n9999\n#TRUE#\n1\n" + blanks + "\n");
}

// Each coefficient is listed with the names.
TEST_F(HostileSizes, LongNamesOfManyCoefficientsAreRefused) {
  const std::string record = '"' + std::string(4000, 'a') + "\",0,1,0,#TRUE#,0,199\n";
  std::string numbers = "0";
  for (int n = 1; n < 400 + 40000; ++n) numbers += ",0";
  writePair("1\n" + record + record + "#FALSE#\n", "1\n199\n#TRUE#\n199\n#TRUE#\n" + numbers + "\n");
  test::expectBadFile("line 2: expected names short enough to list 40000 coefficients, found 8000 characters",
                      [&] { readProblem(path()); });
}

TEST_F(HostileSizes, LongNamesOfDegreesWithoutRoomCanBeOpened) {
  writePair("0\n\"" + std::string(4000, 'a') + "\",0,1,0,#TRUE#,0,2147483646\n#FALSE#\n", "0\n1\n#TRUE#\n0\n1\n8\n9\n");
  EXPECT_EQ(readProblem(path()).problem.VarName[0].size(), 4000u);
}

}  // namespace
}  // namespace tavimor
