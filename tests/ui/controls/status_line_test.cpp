#include "ui/controls/status_line.h"

#include <gtest/gtest.h>

#include <QLabel>

namespace tavimor {
namespace {

TEST(StatusLineText, AHintStandsInThePlaceOfTheResultUntilItIsCleared) {
  StatusLine line;
  line.showResult("fitted");
  line.showHint("a number is needed here");
  EXPECT_EQ(line.text(), "a number is needed here");
  line.clearHint();
  EXPECT_EQ(line.text(), "fitted");
}

TEST(StatusLineText, AResultThatComesDuringAHintIsSeenAfterIt) {
  StatusLine line;
  line.showHint("a number is needed here");
  line.showResult("fitted");
  EXPECT_EQ(line.text(), "a number is needed here");
  line.clearHint();
  EXPECT_EQ(line.text(), "fitted");
}

TEST(StatusLineText, TheNextResultTakesThePlaceOfTheLast) {
  StatusLine line;
  line.showResult("fitted");
  line.showResult("no fit");
  EXPECT_EQ(line.text(), "no fit");
  line.showResult({});
  EXPECT_EQ(line.text(), "");
}

TEST(StatusLineText, MarkupIsText) {
  StatusLine line;
  line.showHint("<b>x</b>");
  EXPECT_EQ(line.findChild<QLabel*>("lblMessage")->textFormat(), Qt::PlainText);
}

TEST(StatusLineSize, ALongTextWidensNothing) {
  StatusLine line;
  line.addPermanentWidget(new QLabel("block 1 of 2"));
  const int width = line.minimumSizeHint().width();
  line.showHint(QString(500, QLatin1Char('x')));
  EXPECT_LE(line.minimumSizeHint().width(), width + 50);
}

TEST(StatusLineSize, WhatIsAddedStandsOnTheRight) {
  StatusLine line;
  auto* block = new QLabel("block 1 of 2");
  line.addPermanentWidget(block);
  line.resize(600, 24);
  line.show();
  EXPECT_GT(block->x(), 400);
}

}  // namespace
}  // namespace tavimor
