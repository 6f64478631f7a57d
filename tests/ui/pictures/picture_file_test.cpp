#include "ui/pictures/picture_file.h"

#include <gmock/gmock.h>

#include <QImage>
#include <QTest>
#include <QXmlStreamReader>
#include <memory>

#include "analysis/pictures/pictured_fits.h"
#include "runtime/run_time_error.h"
#include "support/files.h"
#include "support/matches.h"
#include "support/temporary_folder.h"
#include "ui/pictures/drawings.h"

namespace tavimor {
namespace {

using test::FolderTest;
using test::pictured;
using test::roughProblem;
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

std::unique_ptr<Picture> sectionPicture(const Problem& problem, const PerVariable<double>& at = {}) {
  auto picture = std::make_unique<Picture>(QStringLiteral("picture"));
  const auto fit = pictured(problem);
  SectionChoice choice;
  choice.at = at;
  showSection(*picture, fit, sectionOf(*fit, choice));
  return picture;
}

// All characters between the tags; empty where it is no XML.
std::string charactersOf(const QByteArray& xml) {
  QXmlStreamReader reader(xml);
  std::string text;
  while (!reader.atEnd())
    if (reader.readNext() == QXmlStreamReader::Characters) text += reader.text().toString().toStdString() + '\n';
  return reader.hasError() ? std::string() : text;
}

class PictureFile : public FolderTest {};

TEST_F(PictureFile, ItsFormatGoesByTheEnding) {
  EXPECT_EQ(pictureFormatOf("a/b.png"), PictureFormat::Png);
  EXPECT_EQ(pictureFormatOf("b.SVG"), PictureFormat::Svg);
  EXPECT_EQ(pictureFormatOf("b.c.pdf"), PictureFormat::Pdf);
  for (const char* path : {"b.gif", "png", ""}) EXPECT_EQ(pictureFormatOf(path), std::nullopt) << path;
}

TEST_F(PictureFile, APngHasTwiceTheSizeInPixelsAndMoreThanItsBackground) {
  const QImage image = QImage::fromData(pictureFile(*sectionPicture(roughProblem(1)), PictureFormat::Png, {600, 400}));
  ASSERT_EQ(image.size(), QSize(1200, 800));
  EXPECT_EQ(image.pixelColor(2, 2), QColor(Qt::white));
  int coloured = 0;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x) coloured += image.pixelColor(x, y).saturation() > 100 ? 1 : 0;
  EXPECT_GT(coloured, 1000);
}

TEST_F(PictureFile, AnSvgHasTitleNamesAndNumbersWithAPoint) {
  const QByteArray svg = pictureFile(*sectionPicture(roughProblem(2)), PictureFormat::Svg);
  const std::string text = charactersOf(svg);
  EXPECT_THAT(text,
              AllOf(HasSubstr("Section along x at y = 0"), HasSubstr("function"), HasSubstr("0.5"), HasSubstr("1.5")));
  EXPECT_THAT(text, Not(HasSubstr("0,5")));
}

TEST_F(PictureFile, APdfIsOnePageOfItsSize) {
  const std::string path = folder / "picture.pdf";
  savePicture(*sectionPicture(roughProblem(1)), path);
  const std::string pdf = test::readBytes(path);
  EXPECT_THAT(pdf, testing::StartsWith("%PDF"));
  EXPECT_THAT(test::allMatches(pdf, "(/Type /Page)\\s"), testing::SizeIs(1));
  EXPECT_THAT(test::allMatches(pdf, "(/MediaBox) \\[0 0 720[.0]* 480[.0]*\\]"), testing::SizeIs(1));
}

TEST_F(PictureFile, OfADarkWindowIsBlackOnWhite) {
  const auto picture = sectionPicture(roughProblem(1));
  QPalette dark;
  dark.setColor(QPalette::Base, Qt::black);
  dark.setColor(QPalette::WindowText, Qt::white);
  picture->setPalette(dark);
  const QImage image = QImage::fromData(pictureFile(*picture, PictureFormat::Png));
  EXPECT_EQ(image.pixelColor(2, 2), QColor(Qt::white));
  EXPECT_EQ(picture->grab().toImage().pixelColor(2, 2), QColor(Qt::black));
}

TEST_F(PictureFile, NamesOf300CharactersAndNumbersOf1E300FitIn) {
  for (const double size : {1e300, 1e-300}) {
    Dimension model = test::problem({{std::string(300, 'x'), test::spaced(0.0, 2.0, 9), 2, 1.0}});
    test::tabulate(model, [=](double x, double, double, double) { return size * std::exp(x); });
    const std::string text = charactersOf(pictureFile(*sectionPicture(model), PictureFormat::Svg));
    EXPECT_THAT(text, HasSubstr(size > 1 ? "function / 1E300" : "function / 1E-300"));
  }
}

TEST_F(PictureFile, ThatCannotBeWrittenIsAnErrorWithItsPath) {
  const auto picture = sectionPicture(roughProblem(1));
  try {
    savePicture(*picture, folder / "none/picture.png");
    FAIL();
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.path(), folder / "none/picture.png");
  }
}

}  // namespace
}  // namespace tavimor
