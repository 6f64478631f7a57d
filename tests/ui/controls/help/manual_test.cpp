#include <gmock/gmock.h>

#include <QFile>
#include <QImage>
#include <QTextBlock>
#include <QTextDocument>
#include <set>

#include "ui/controls/help/help_headings.h"

namespace tavimor {
namespace {

using ::testing::Contains;
using ::testing::IsSubsetOf;

/// The manual as it is shipped.
class Manual : public testing::Test {
 protected:
  Manual() {
    QFile file(QStringLiteral(TAVIMOR_SOURCE_DIR "/help/tavimor.hlp"));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    text.setHtml(QString::fromUtf8(file.readAll()));
    for (QTextBlock block = text.begin(); block.isValid(); block = block.next())
      for (auto part = block.begin(); !part.atEnd(); ++part) take(part.fragment().charFormat());
  }

  QTextDocument text;
  std::vector<std::string> anchors;
  std::set<std::string> targets;
  std::vector<QTextImageFormat> pictures;

 private:
  void take(const QTextCharFormat& format) {
    if (format.isImageFormat()) pictures.push_back(format.toImageFormat());
    for (const QString& name : format.anchorNames()) anchors.push_back(name.toStdString());
    if (format.anchorHref().startsWith('#')) targets.insert(format.anchorHref().mid(1).toStdString());
  }
};

TEST_F(Manual, EveryInternalLinkHasItsAnchor) { EXPECT_THAT(targets, IsSubsetOf(anchors)); }

TEST_F(Manual, AnAnchorStandsInOnePlace) {
  EXPECT_EQ(std::set<std::string>(anchors.begin(), anchors.end()).size(), anchors.size());
}

TEST_F(Manual, ItsPicturesAreThereInTheirSizes) {
  EXPECT_FALSE(pictures.empty());
  for (const QTextImageFormat& picture : pictures) {
    const QImage image(QStringLiteral(TAVIMOR_SOURCE_DIR "/help/") + picture.name());
    EXPECT_EQ(image.width(), picture.width()) << picture.name().toStdString();
    EXPECT_EQ(image.height(), picture.height()) << picture.name().toStdString();
  }
}

TEST_F(Manual, EveryWindowHasItsPage) {
  std::vector<std::string> pages;
  for (const HelpHeading& heading : readHeadings(text))
    if (heading.level == 1) pages.push_back(heading.anchor.toStdString());
  for (const char* window : {"frmTavimor", "frmVars", "frmFun", "frmEvaluations", "frmAbout", "frmAnalysis",
                             "frmExport", "frmTable", "frmRestore"})
    EXPECT_THAT(pages, Contains(window));
}

}  // namespace
}  // namespace tavimor
