#include "ui/controls/help/help_search.h"

#include <QPushButton>
#include <QScrollBar>

#include "ui/support/help_viewer_test.h"

namespace tavimor {
namespace {

/// Searches a text of three places: "pear" in each of the first two pages' beginnings, and in the last paragraph.
class HelpSearching : public HelpViewerTest {
 protected:
  HelpSearching() {
    path = write("pears.hlp", "<h1>One</h1><p>A pear.</p>" + longText("apple") +
                                  "<h1><a name=\"two\"></a>Two</h1><p>A second Pear here.</p>" + longText("apple") +
                                  "<p>The third pear.</p>");
  }

  void search(const QString& text) {
    press(Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(field().hasFocus());
    type(text);
  }

  /// The paragraph of the place that is selected, which must be in view.
  std::string place() {
    const QTextCursor cursor = page().textCursor();
    EXPECT_TRUE(cursor.hasSelection());
    EXPECT_TRUE(page().viewport()->rect().intersects(page().cursorRect()));
    return cursor.block().text().toStdString();
  }
};

TEST_F(HelpSearching, TypingMarksAllPlacesAndCountsThem) {
  show();
  search("pear");
  EXPECT_EQ(found(), "3 found");
  EXPECT_EQ(page().extraSelections().size(), 3);
  EXPECT_EQ(page().extraSelections().at(1).cursor.selectedText(), "Pear");
  search("");
  press(Qt::Key_Delete);
  EXPECT_EQ(found(), "");
  EXPECT_TRUE(page().extraSelections().isEmpty());
}

TEST_F(HelpSearching, EnterGoesFromPlaceToPlaceAndRoundTheEnd) {
  show();
  search("pear");
  press(Qt::Key_Return);
  EXPECT_EQ(place(), "A pear.");
  EXPECT_EQ(found(), "1 of 3");
  press(Qt::Key_Enter, Qt::KeypadModifier);
  EXPECT_EQ(place(), "A second Pear here.");
  press(Qt::Key_Return);
  EXPECT_EQ(place(), "The third pear.");
  EXPECT_EQ(found(), "3 of 3");
  press(Qt::Key_Return);
  EXPECT_EQ(place(), "A pear.");
  EXPECT_EQ(found(), "1 of 3, from the beginning again");
}

TEST_F(HelpSearching, ShiftEnterGoesBackAndRoundTheBeginning) {
  show();
  search("pear");
  press(Qt::Key_Return, Qt::ShiftModifier);
  EXPECT_EQ(place(), "The third pear.");
  EXPECT_EQ(found(), "3 of 3, from the end again");
  press(Qt::Key_Return, Qt::ShiftModifier);
  EXPECT_EQ(place(), "A second Pear here.");
  EXPECT_EQ(found(), "2 of 3");
}

TEST_F(HelpSearching, F3DoesTheSameFromThePage) {
  show();
  search("pear");
  page().setFocus();
  press(Qt::Key_F3);
  EXPECT_EQ(place(), "A pear.");
  press(Qt::Key_F3);
  EXPECT_EQ(place(), "A second Pear here.");
  press(Qt::Key_F3, Qt::ShiftModifier);
  EXPECT_EQ(place(), "A pear.");
  EXPECT_TRUE(page().hasFocus());
}

TEST_F(HelpSearching, TheButtonsDoTheSame) {
  show();
  search("pear");
  click("cmdFindNext");
  click("cmdFindNext");
  EXPECT_EQ(place(), "A second Pear here.");
  click("cmdFindPrevious");
  EXPECT_EQ(place(), "A pear.");
}

TEST_F(HelpSearching, ItBeginsAtWhatIsInView) {
  show("two");
  search("pear");
  press(Qt::Key_Return);
  EXPECT_EQ(found(), "2 of 3");
}

TEST_F(HelpSearching, NothingFoundIsSaidAndThePageStays) {
  show("two");
  const int before = page().verticalScrollBar()->value();
  search("quince");
  EXPECT_EQ(found(), "Not found");
  press(Qt::Key_Return);
  press(Qt::Key_F3, Qt::ShiftModifier);
  EXPECT_EQ(found(), "Not found");
  EXPECT_EQ(page().verticalScrollBar()->value(), before);
}

TEST_F(HelpSearching, CtrlFAgainReplacesTheText) {
  show();
  search("pear");
  page().setFocus();
  search("third");
  EXPECT_EQ(field().text(), "third");
  EXPECT_EQ(found(), "1 found");
}

TEST_F(HelpSearching, AnotherFileIsSearchedForTheSameText) {
  show();
  search("pear");
  path = write("other.hlp", "<p>one pear</p>");
  show();
  press(Qt::Key_F3);
  EXPECT_EQ(place(), "one pear");
  EXPECT_EQ(found(), "1 of 1");
}

}  // namespace
}  // namespace tavimor
