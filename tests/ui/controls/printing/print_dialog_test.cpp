#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QFile>
#include <QLineEdit>
#include <QPrinter>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTest>

#include "ui/controls/common_dialog.h"
#include "ui/support/dialogs.h"

namespace tavimor {
namespace {

class PrintDialog : public testing::Test {
 protected:
  PrintDialog() { printer.setPageMargins({20, 20, 20, 20}, QPageLayout::Millimeter); }

  QString pathOf(const char* name) { return folder.filePath(QLatin1String(name)); }

  Dialogs dialogs;
  QTemporaryDir folder;
  QPrinter printer;
  CommonDialog dialog;
};

TEST_F(PrintDialog, TakesTheFileToPrintTo) {
  dialogs.expectAndPrintTo(pathOf("report.pdf"));
  EXPECT_EQ(dialog.ShowPrinter(printer), DialogEnd::Confirmed);
  EXPECT_EQ(printer.outputFormat(), QPrinter::PdfFormat);
  EXPECT_EQ(printer.outputFileName(), pathOf("report.pdf"));
  EXPECT_FALSE(QFile::exists(pathOf("report.pdf")));
}

TEST_F(PrintDialog, KeepsTheMargins) {
  dialogs.expectAndPrintTo(pathOf("report.pdf"));
  dialog.ShowPrinter(printer);
  EXPECT_EQ(printer.pageLayout().margins(QPageLayout::Millimeter), QMarginsF(20, 20, 20, 20));
}

TEST_F(PrintDialog, CalledOffLeavesThePrinterAsItWas) {
  printer.setOutputFileName(pathOf("earlier.pdf"));
  const QPageLayout layout = printer.pageLayout();
  dialogs.expect([&](QDialog& shown) {
    auto* file = shown.findChild<QLineEdit*>("filename");
    EXPECT_EQ(file->text(), pathOf("earlier.pdf"));
    QTest::keyClicks(file, "x");
    QTest::keyClick(&shown, Qt::Key_Escape);
  });
  EXPECT_EQ(dialog.ShowPrinter(printer), DialogEnd::Cancelled);
  EXPECT_EQ(printer.outputFormat(), QPrinter::PdfFormat);
  EXPECT_EQ(printer.outputFileName(), pathOf("earlier.pdf"));
  EXPECT_EQ(printer.pageLayout(), layout);
}

TEST_F(PrintDialog, BeginsWithAllPagesOnce) {
  printer.setPrintRange(QPrinter::PageRange);
  printer.setFromTo(2, 3);
  printer.setCopyCount(4);
  dialogs.expectAndPrintTo(pathOf("report.pdf"));
  dialog.ShowPrinter(printer);
  EXPECT_TRUE(printer.pageRanges().isEmpty());
  EXPECT_EQ(printer.copyCount(), 1);
}

TEST_F(PrintDialog, TakesARangeOfPages) {
  dialogs.expect([&](QDialog& shown) {
    const auto button = [&](const char* text) {
      for (auto* found : shown.findChildren<QAbstractButton*>())
        if (found->text().contains(QLatin1String(text)) && found->isVisible()) QTest::mouseClick(found, Qt::LeftButton);
    };
    button("Options");
    auto* range = shown.findChild<QAbstractButton*>("printRange");
    ASSERT_TRUE(range->isVisible());
    QTest::keyClick(range, Qt::Key_Space);
    auto* from = shown.findChild<QSpinBox*>("from");
    from->selectAll();
    QTest::keyClicks(from, "2");
    auto* to = shown.findChild<QSpinBox*>("to");
    to->selectAll();
    QTest::keyClicks(to, "3");
    shown.findChild<QLineEdit*>("filename")->setText(pathOf("report.pdf"));
    button("Print");
  });
  EXPECT_EQ(dialog.ShowPrinter(printer), DialogEnd::Confirmed);
  EXPECT_EQ(printer.pageRanges().toString(), "2-3");
}

TEST_F(PrintDialog, RefusesAPathThatCannotBeWritten) {
  QString text;
  dialogs.expectAndPrintTo(pathOf("missing/report.pdf"));
  dialogs.expectAndPress("OK", &text);
  dialogs.expect([](QDialog& shown) { QTest::keyClick(&shown, Qt::Key_Escape); });
  EXPECT_EQ(dialog.ShowPrinter(printer), DialogEnd::Cancelled);
  EXPECT_TRUE(text.contains(pathOf("missing/report.pdf"))) << text.toStdString();
}

}  // namespace
}  // namespace tavimor
