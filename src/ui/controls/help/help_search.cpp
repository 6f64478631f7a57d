#include "ui/controls/help/help_search.h"

#include <QHBoxLayout>
#include <QShortcut>
#include <algorithm>

#include "ui/controls/help/help_page.h"
#include "ui/controls/make_control.h"

namespace tavimor {

namespace {

constexpr QColor kPlaceColor{0xff, 0xe9, 0x7a};

std::vector<QTextCursor> placesOf(const QString& text, const QTextDocument& document) {
  std::vector<QTextCursor> places;
  if (text.isEmpty()) return places;
  for (QTextCursor place = document.find(text); !place.isNull(); place = document.find(text, place))
    places.push_back(place);
  return places;
}

}  // namespace

HelpSearch::HelpSearch(HelpPage& page) : page_(page) {
  makeControls();
  connect(txtFind, &QLineEdit::textChanged, this, &HelpSearch::textTyped);
  connect(&page, &QTextBrowser::sourceChanged, this, &HelpSearch::markPlaces);
  connect(cmdFindNext, &QPushButton::clicked, this, &HelpSearch::findNext);
  connect(cmdFindPrevious, &QPushButton::clicked, this, &HelpSearch::findPrevious);
  for (const Qt::Key enter : {Qt::Key_Return, Qt::Key_Enter}) {
    new QShortcut(enter, txtFind, this, &HelpSearch::findNext, Qt::WidgetShortcut);
    new QShortcut(Qt::SHIFT | enter, txtFind, this, &HelpSearch::findPrevious, Qt::WidgetShortcut);
  }
}

void HelpSearch::makeControls() {
  auto* lblFind = makeControl<QLabel>(QStringLiteral("lblFind"), "F&ind:");
  txtFind = makeControl<QLineEdit>(QStringLiteral("txtFind"), "");
  txtFind->setFont(verdanaFont());
  txtFind->setAccessibleName(QStringLiteral("Find"));
  txtFind->setMinimumWidth(widthOf(*txtFind, 16));
  lblFind->setBuddy(txtFind);
  cmdFindPrevious = makeButton(QStringLiteral("cmdFindPrevious"), "P&revious");
  cmdFindNext = makeButton(QStringLiteral("cmdFindNext"), "&Next");
  lblFound = makeControl<QLabel>(QStringLiteral("lblFound"), "");
  lblFound->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins({});
  for (QWidget* control : {static_cast<QWidget*>(lblFind), static_cast<QWidget*>(txtFind),
                           static_cast<QWidget*>(cmdFindPrevious), static_cast<QWidget*>(cmdFindNext)})
    layout->addWidget(control);
  layout->addWidget(lblFound, 1);
}

void HelpSearch::begin() {
  txtFind->setFocus(Qt::ShortcutFocusReason);
  txtFind->selectAll();
}

void HelpSearch::textTyped() {
  markPlaces();
  if (txtFind->text().isEmpty())
    lblFound->clear();
  else if (places_.empty())
    lblFound->setText(QStringLiteral("Not found"));
  else
    lblFound->setText(QStringLiteral("%1 found").arg(places_.size()));
}

void HelpSearch::markPlaces() {
  places_ = placesOf(txtFind->text(), *page_.document());
  QTextCharFormat format;
  format.setBackground(kPlaceColor);
  QList<QTextEdit::ExtraSelection> marks;
  for (const QTextCursor& place : places_) marks << QTextEdit::ExtraSelection{place, format};
  page_.setExtraSelections(marks);
}

// From where the user left the caret, or from what is in view where that has been scrolled away.
QTextCursor HelpSearch::start() const {
  QTextCursor cursor = page_.textCursor();
  if (!page_.isInView(cursor)) cursor.setPosition(page_.topPosition());
  return cursor;
}

void HelpSearch::findNext() {
  if (places_.empty()) return textTyped();
  const int from = start().selectionEnd();
  const auto next = std::find_if(places_.begin(), places_.end(),
                                 [from](const QTextCursor& place) { return place.selectionStart() >= from; });
  if (next == places_.end())
    goTo(0, QStringLiteral(", from the beginning again"));
  else
    goTo(static_cast<std::size_t>(next - places_.begin()), {});
}

void HelpSearch::findPrevious() {
  if (places_.empty()) return textTyped();
  const int from = start().selectionStart();
  const auto previous = std::find_if(places_.rbegin(), places_.rend(),
                                     [from](const QTextCursor& place) { return place.selectionEnd() <= from; });
  if (previous == places_.rend())
    goTo(places_.size() - 1, QStringLiteral(", from the end again"));
  else
    goTo(static_cast<std::size_t>(places_.rend() - previous) - 1, {});
}

void HelpSearch::goTo(std::size_t place, const QString& remark) {
  page_.setTextCursor(places_[place]);
  lblFound->setText(QStringLiteral("%1 of %2%3").arg(place + 1).arg(places_.size()).arg(remark));
}

}  // namespace tavimor
