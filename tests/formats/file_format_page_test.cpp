// The examples of docs/file-format.md, read out of the page.
#include <gtest/gtest.h>

#include "formats/open_problem.h"
#include "model/capture_specs.h"
#include "support/document.h"
#include "support/expect_error.h"
#include "support/faulty_steps.h"
#include "support/pair_files.h"
#include "support/problem.h"
#include "support/stored_problems.h"

namespace tavimor {
namespace {

class FileFormatPage : public test::PairTest {
 protected:
  std::string bytesOf(const std::string& block) const { return test::withCrLf(page.block(block)); }

  // Opens the pair that a block and the one with ".dat" behind its name show.
  void open(const std::string& block) {
    writePair(bytesOf(block), bytesOf(block + ".dat"));
    OpenedProblem opened = openProblem(path());
    model = test::modelOf(std::move(opened.problem), std::move(opened.fit));
    fields = std::move(opened.fields);
  }

  void saveAndExpect(const std::string& block) {
    test::FaultySteps quick;
    test::save(model, fields, path(), quick);
    expectBytes(bytesOf(block), bytesOf(block + ".dat"));
  }

  test::Document page{"file-format.md"};
  Dimension model;
  AllSpecFields fields;
};

// The problem that the page describes in words.
Dimension gauge() {
  Dimension model = test::problem({{"p", {0, 0.5, 1}, 1, 0.5}, {"T", {10, 30}, 1, 20}});
  model.EquallySpaced[0] = true;
  const double readings[3][2] = {{-0.625, 1.875}, {0.25, 3.25}, {1.875, 5.375}};
  test::forEachIndex(model.LastPoint, [&](Long i0, Long i1, Long, Long) { model.F(i0, i1, 0, 0) = readings[i0][i1]; });
  return model;
}

TEST_F(FileFormatPage, ShowsTheFilesOfTheProblemThatItDescribes) {
  open("gauge");
  test::expectSameProblem(model, gauge());
  saveAndExpect("gauge");
}

TEST_F(FileFormatPage, ShowsTheFilesAfterAFit) {
  open("gauge");
  CaptureSpecs(model, fields);
  test::compute(model);
  ASSERT_TRUE(model.FitDone);
  saveAndExpect("gauge-fitted");
}

TEST_F(FileFormatPage, ShowsAFitThatOpensWithTheCoefficientsOfItsFormula) {
  open("gauge-fitted");
  ASSERT_TRUE(model.FitDone);
  EXPECT_EQ(std::vector<double>(model.Coef.data(), model.Coef.data() + model.Coef.size()),
            (std::vector<double>{2, 3, 0.15, 0.05}));
  saveAndExpect("gauge-fitted");
}

TEST_F(FileFormatPage, ShowsTheSameProblemWrittenByHand) {
  open("by-hand");
  test::expectSameProblem(model, gauge());
  saveAndExpect("gauge");
}

TEST_F(FileFormatPage, ShowsTheMessageThatARefusedFileGives) {
  const std::string told = page.block("message");
  writePair(page.block("refused"), bytesOf("gauge.dat"));
  test::expectBadFile(told.substr(told.find("line"), told.find('\n') - told.find("line")), [&] { read(); });
}

}  // namespace
}  // namespace tavimor
