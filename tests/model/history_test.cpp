#include "model/history.h"

#include <gtest/gtest.h>

#include <cmath>

#include "support/problem.h"

namespace tavimor {
namespace {

using Lines = std::vector<std::string>;

// A problem of two variables, 3 and 2 values, what its window shows, and a history of it.
class HistoryOfAProblem : public testing::Test {
 protected:
  HistoryOfAProblem() : model(test::problem({{"x", {0, 1, 2}, 1, 0}, {"y", {0, 1}, 1, 0}})) {
    shown.entries.stage = Stage::NamesGiven;
  }

  // What a window does when a text was typed.
  void type(std::string SpecFields::*field, const std::string& text) {
    history.begin({"typing", 0}, shown.entries, model);
    shown.entries.fields[0].*field = text;
  }

  void setFunction(const PerVariable<Long>& point, double value) {
    history.beginValue({"function value", {}}, {{}, point}, value, model);
    model.F(point) = value;
  }

  void setValue(Long v, Long i, double value) {
    ValuePlace place{v, {}};
    place.index[v] = i;
    history.beginValue({"value", v}, place, value, model);
    valueOf(model, v, i) = value;
  }

  // What a window does when it computes.
  void compute(double correlation, const Lines& lines) {
    history.keepResults({model, shown.lines});
    model.CorrCoef = correlation;
    model.FitDone = true;
    shown.lines = lines;
  }

  void drop() {
    history.keepResults({model, shown.lines});
    model.FitDone = false;
    shown.lines.clear();
  }

  std::string degree() const { return shown.entries.fields[0].txtTerms; }
  Exchanged undo() { return history.undo(model, shown); }
  Exchanged redo() { return history.redo(model, shown); }

  Dimension model;
  Shown shown;
  History history;
};

TEST_F(HistoryOfAProblem, AtTheBeginningThereIsNothingToUndoOrRedo) {
  EXPECT_FALSE(history.canUndo());
  EXPECT_FALSE(history.canRedo());
  EXPECT_TRUE(history.isSaved());
}

TEST_F(HistoryOfAProblem, ATextGoesBackAndForth) {
  type(&SpecFields::txtTerms, "5");
  EXPECT_EQ(history.toUndo().name, "typing");
  EXPECT_TRUE(undo().hasEntries);
  EXPECT_EQ(degree(), "1");
  EXPECT_EQ(history.toRedo().name, "typing");
  redo();
  EXPECT_EQ(degree(), "5");
}

TEST_F(HistoryOfAProblem, TheSpecificationGoesWithTheTexts) {
  type(&SpecFields::txtTerms, "2");
  model.Degree[0] = 2;
  undo();
  EXPECT_EQ(model.Degree[0], 1);
  redo();
  EXPECT_EQ(model.Degree[0], 2);
}

TEST_F(HistoryOfAProblem, AStepAfterAnUndoEndsWhatCouldBeRedone) {
  type(&SpecFields::txtTerms, "5");
  undo();
  type(&SpecFields::txtLL, "7");
  EXPECT_FALSE(history.canRedo());
  undo();
  EXPECT_FALSE(history.canUndo());
}

TEST_F(HistoryOfAProblem, AFunctionValueComesBackWithItsBits) {
  model.F(2, 1, 0, 0) = 1.0 / 3.0;
  setFunction({2, 1}, 7);
  const auto exchanged = undo();
  EXPECT_EQ(model.F(2, 1, 0, 0), 1.0 / 3.0);
  ASSERT_TRUE(exchanged.value);
  EXPECT_FALSE(exchanged.value->variable);
  EXPECT_EQ(exchanged.value->index, (PerVariable<Long>{2, 1}));
  redo();
  EXPECT_EQ(model.F(2, 1, 0, 0), 7);
}

TEST_F(HistoryOfAProblem, TheSignOfAZeroComesBack) {
  setFunction({0, 0}, -0.0);
  undo();
  EXPECT_FALSE(std::signbit(model.F(0, 0, 0, 0)));
  redo();
  EXPECT_TRUE(std::signbit(model.F(0, 0, 0, 0)));
}

TEST_F(HistoryOfAProblem, TheKeysOfOneNumberAreOneStep) {
  for (const double value : {2.0, 2.5, 2.57}) setFunction({1, 1}, value);
  undo();
  EXPECT_EQ(model.F(1, 1, 0, 0), 0);
  EXPECT_FALSE(history.canUndo());
}

TEST_F(HistoryOfAProblem, AnotherNumberIsAnotherStep) {
  setValue(0, 1, 5);
  setValue(0, 2, 6);
  setValue(1, 1, 7);
  undo();
  undo();
  EXPECT_EQ(model.X0, (std::vector<double>{0, 5, 2}));
  EXPECT_EQ(model.X1, (std::vector<double>{0, 1}));
}

TEST_F(HistoryOfAProblem, TheSameNumberTypedASecondTimeIsAnotherStep) {
  setValue(0, 1, 5);
  history.endTyping();
  setValue(0, 1, 6);
  undo();
  EXPECT_EQ(model.X0[1], 5);
}

TEST_F(HistoryOfAProblem, ANumberTypedBackToWhatItWasIsNoStep) {
  setValue(0, 1, 12);
  setValue(0, 1, 1);
  EXPECT_FALSE(history.canUndo());
  EXPECT_TRUE(history.isSaved());
}

TEST_F(HistoryOfAProblem, ANumberTypedAnewAsItIsIsNoStep) {
  setValue(0, 1, 1);
  EXPECT_FALSE(history.canUndo());
}

TEST_F(HistoryOfAProblem, AReplacedFunctionComesBack) {
  model.F(2, 1, 0, 0) = 9;
  type(&SpecFields::txtPoints, "2");
  history.keepFunction(std::exchange(model.F, Table4()));
  model.F.redim({1, 1, 0, 0});
  undo();
  EXPECT_EQ(model.F(2, 1, 0, 0), 9);
  redo();
  EXPECT_EQ(model.F.last(), (PerVariable<Long>{1, 1, 0, 0}));
}

TEST_F(HistoryOfAProblem, ANumberInATableThatWasReplacedAfterwardsComesBack) {
  setFunction({2, 1}, 9);
  type(&SpecFields::txtPoints, "2");
  history.keepFunction(std::exchange(model.F, Table4()));
  model.F.redim({1, 1, 0, 0});
  undo();
  undo();
  EXPECT_EQ(model.F(2, 1, 0, 0), 0);
  redo();
  EXPECT_EQ(model.F(2, 1, 0, 0), 9);
}

TEST_F(HistoryOfAProblem, ValuesThatWereMadeAnewComeBackWithTheirStep) {
  setValue(0, 1, 5);
  history.keepValues(0, model.X0);
  model.X0 = {0, 1, 2};
  undo();
  EXPECT_EQ(model.X0, (std::vector<double>{0, 1, 2})) << "as before the number was typed";
  redo();
  EXPECT_EQ(model.X0, (std::vector<double>{0, 1, 2})) << "as the state was left";
}

TEST_F(HistoryOfAProblem, AFitThatAChangeDroppedComesBack) {
  compute(0.5, {"a fit"});
  type(&SpecFields::txtTerms, "0");
  drop();
  EXPECT_TRUE(undo().hasResults);
  EXPECT_TRUE(model.FitDone);
  EXPECT_EQ(model.CorrCoef, 0.5);
  EXPECT_EQ(shown.lines, Lines{"a fit"});
  redo();
  EXPECT_FALSE(model.FitDone);
  EXPECT_EQ(shown.lines, Lines{});
}

TEST_F(HistoryOfAProblem, EachStateHasItsFit) {
  compute(0.1, {"first"});
  setFunction({0, 0}, 1);
  compute(0.2, {"second"});
  setFunction({0, 1}, 2);
  compute(0.3, {"third"});
  undo();
  EXPECT_EQ(shown.lines, Lines{"second"});
  undo();
  EXPECT_EQ(shown.lines, Lines{"first"});
  EXPECT_EQ(model.CorrCoef, 0.1);
  redo();
  EXPECT_EQ(shown.lines, Lines{"second"});
  redo();
  EXPECT_EQ(shown.lines, Lines{"third"});
  EXPECT_EQ(model.CorrCoef, 0.3);
}

TEST_F(HistoryOfAProblem, AFitMadeAfterAnUndoLeavesThoseBeforeAndBehindIt) {
  compute(0.1, {"first"});
  setFunction({0, 0}, 1);
  setFunction({0, 1}, 2);
  undo();
  compute(0.2, {"between"});
  redo();
  EXPECT_EQ(shown.lines, Lines{"first"}) << "as the state was left";
  undo();
  EXPECT_EQ(shown.lines, Lines{"between"});
  undo();
  EXPECT_EQ(shown.lines, Lines{"first"});
}

TEST_F(HistoryOfAProblem, AChangeThatLeavesTheFitLeavesItWhenUndone) {
  compute(0.1, {"first"});
  setFunction({0, 0}, 1);
  EXPECT_FALSE(undo().hasResults);
  EXPECT_EQ(shown.lines, Lines{"first"});
}

TEST_F(HistoryOfAProblem, TheFileNameComesBackUnlessItWasChangedAgain) {
  model.FileName = "mine";
  type(&SpecFields::txtPoints, "5");
  model.FileName = "FUNCTION";
  history.keepFileName("mine", "FUNCTION");
  undo();
  EXPECT_EQ(model.FileName, "mine");
  redo();
  EXPECT_EQ(model.FileName, "FUNCTION");
  model.FileName = "saved as";
  undo();
  EXPECT_EQ(model.FileName, "saved as");
}

TEST_F(HistoryOfAProblem, OnlyTheSavedStateCountsAsSaved) {
  type(&SpecFields::txtTerms, "5");
  EXPECT_FALSE(history.isSaved());
  history.setSaved();
  EXPECT_TRUE(history.isSaved());
  undo();
  EXPECT_FALSE(history.isSaved());
  redo();
  EXPECT_TRUE(history.isSaved());
}

TEST_F(HistoryOfAProblem, ASavedStateThatCannotBeReachedAnyMoreIsNoState) {
  type(&SpecFields::txtTerms, "5");
  history.setSaved();
  undo();
  type(&SpecFields::txtTerms, "6");
  EXPECT_FALSE(history.isSaved());
}

TEST_F(HistoryOfAProblem, TypingOnAfterASaveIsAStepOfItsOwn) {
  setFunction({0, 0}, 1);
  history.setSaved();
  setFunction({0, 0}, 12);
  EXPECT_FALSE(history.isSaved());
  undo();
  EXPECT_TRUE(history.isSaved());
  EXPECT_EQ(model.F(0, 0, 0, 0), 1);
}

TEST_F(HistoryOfAProblem, TheOldestOfTwoHundredStepsGo) {
  for (int n = 1; n <= 250; ++n) type(&SpecFields::txtLL, std::to_string(n));
  EXPECT_EQ(history.position(), 250U);
  int undone = 0;
  for (; history.canUndo(); ++undone) undo();
  EXPECT_EQ(undone, 200);
  EXPECT_EQ(shown.entries.fields[0].txtLL, "50");
}

class HistoryInLittleRoom : public HistoryOfAProblem {
 protected:
  static constexpr std::size_t kRoom = 200000;

  HistoryInLittleRoom() { history = History({200, kRoom}); }

  // Replaces the function by another table of this many bytes.
  void replaceFunction(std::size_t bytes, double mark) {
    type(&SpecFields::txtPoints, std::to_string(mark));
    Table4 next;
    next.redim({static_cast<Long>(bytes / sizeof(double)) - 1, 0, 0, 0});
    next(0, 0, 0, 0) = mark;
    history.keepFunction(std::exchange(model.F, std::move(next)));
  }
};

TEST_F(HistoryInLittleRoom, TheOldestGoBeyondTheBytes) {
  for (int n = 0; n < 10; ++n) replaceFunction(kRoom / 4, n);
  EXPECT_LE(history.bytes(), kRoom);
  int undone = 0;
  for (; history.canUndo(); ++undone) undo();
  EXPECT_EQ(undone, 3);
  EXPECT_EQ(model.F(0, 0, 0, 0), 6);
}

TEST_F(HistoryInLittleRoom, AFunctionBeyondThemEndsTheHistoryBeforeIt) {
  replaceFunction(2 * kRoom, 1);
  EXPECT_TRUE(history.canUndo());
  replaceFunction(8, 2);
  EXPECT_FALSE(history.canUndo());
  setFunction({0, 0}, 3);
  undo();
  EXPECT_EQ(model.F(0, 0, 0, 0), 2);
}

TEST_F(HistoryInLittleRoom, AFitTooLargeToBeKeptLeavesTheStepsAlone) {
  model.FitGrid.redim({static_cast<Long>(kRoom), 0, 0, 0});
  compute(0.5, {"large"});
  type(&SpecFields::txtTerms, "0");
  drop();
  undo();
  EXPECT_EQ(degree(), "1");
  EXPECT_FALSE(model.FitDone);
  EXPECT_EQ(shown.lines, Lines{});
}

TEST(TypedChange, NamesTheFieldThatDiffers) {
  const EntryTexts before;
  const PerVariable<std::string> names{"x", "y", "z", "t"};
  const auto nameOf = [&](auto change) {
    EntryTexts now;
    change(now);
    const auto found = typedChange(before, now, names);
    return found ? found->name : "nothing";
  };
  EXPECT_EQ(nameOf([](EntryTexts&) {}), "nothing");
  EXPECT_EQ(nameOf([](EntryTexts& now) { now.txtOrder = "2"; }), "number of variables");
  EXPECT_EQ(nameOf([](EntryTexts& now) { now.txtVarNams = "x,y"; }), "names");
  EXPECT_EQ(nameOf([](EntryTexts& now) { now.fields[0].txtLL = "2"; }), "lower limit of x");
  EXPECT_EQ(nameOf([](EntryTexts& now) { now.fields[3].txtUL = "2"; }), "upper limit of t");
  EXPECT_EQ(nameOf([](EntryTexts& now) { now.fields[0].txtPoints = "6"; }), "number of values of x 2 -> 6");
  EXPECT_EQ(nameOf([](EntryTexts& now) { now.fields[0].txtTerms = "2"; }), "degree of x");
  EXPECT_EQ(nameOf([](EntryTexts& now) { now.fields[1].txtExpansion = "2"; }), "centre of y");
  EXPECT_EQ(nameOf([](EntryTexts& now) { now.fields[2].chkSpaced = false; }), "equal spacing of z");
}

TEST(TypedChange, TellsTheVariable) {
  EntryTexts now;
  now.fields[2].txtLL = "7";
  EXPECT_EQ(typedChange({}, now, {})->variable, 2);
}

}  // namespace
}  // namespace tavimor
