#include "ui/controls/printing/printer.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QFontInfo>
#include <QPdfWriter>
#include <QPrinter>
#include <QTemporaryDir>

#ifdef Q_OS_UNIX
#include <sys/resource.h>
#include <sys/stat.h>

#include <csignal>
#endif

#include "support/expect_error.h"
#include "ui/controls/printing/line_pages.h"
#include "ui/support/dialogs.h"
#include "ui/support/printed_pdf.h"

namespace tavimor {
namespace {

using test::expectError;
using testing::ElementsAre;
using testing::StartsWith;
using Lines = std::vector<std::string>;

const std::string kIndent(26, ' ');

std::string withoutBlanks(std::string text) {
  std::erase(text, ' ');
  return text;
}

Lines numbered(int count) {
  Lines lines;
  for (int n = 1; n <= count; ++n) lines.push_back("line " + std::to_string(n));
  return lines;
}

constexpr int kTermIndent = 24;  // columns, as of a listing

class PrinterTest : public testing::Test {
 protected:
  PrinterTest() {
    printer.FontName = "Courier New";
    printer.TermIndent = kTermIndent;
    printer.device().setOutputFileName(path);
    printer.device().setPageSize(QPageSize(QPageSize::A4));
  }

  PrintedPdf printed(const Lines& lines) {
    for (const std::string& line : lines) printer.Print(line);
    printer.EndDoc();
    return readPdf(path);
  }

  bool folderIsEmpty() const { return QDir(folder.path()).isEmpty(); }

  Dialogs dialogs;
  QTemporaryDir folder;
  QString path = folder.filePath("report.pdf");
  Printer printer;
};

TEST_F(PrinterTest, PrintsEveryLineInItsColumns) {
  const Lines lines = {"", "           VARIABLE: x", "1.5                     *x*(y-0.5)", "",
                       "   x=0.5       FUNCTION=-1E-07"};
  EXPECT_EQ(printed(lines).lines(), lines);
}

TEST_F(PrinterTest, PrintsNothingBeforeTheDocumentEnds) {
  printer.Print("line");
  EXPECT_TRUE(folderIsEmpty());
  printer.EndDoc();
  EXPECT_TRUE(QFile::exists(path));
}

TEST_F(PrinterTest, LeavesNothingOfADocumentThatIsGivenUp) {
  printer.Print("of the first");
  printer.KillDoc();
  printer.EndDoc();
  EXPECT_TRUE(folderIsEmpty());
  EXPECT_EQ(printed({"of the second"}).lines(), Lines{"of the second"});
}

TEST_F(PrinterTest, BeginsEachDocumentAnew) {
  printed({"first"});
  EXPECT_EQ(printed({"second"}).lines(), Lines{"second"});
}

TEST_F(PrinterTest, HasTheFontOfTheWindowsAtFirst) {
  EXPECT_EQ(Printer().FontName, QApplication::font().family().toStdString());
}

TEST_F(PrinterTest, TakesAFontOfFixedPitchForOneThatIsNotInstalled) {
  QPdfWriter device(path);
  EXPECT_TRUE(QFontInfo(printedFont("Courier New", device)).fixedPitch());
  EXPECT_TRUE(QFontInfo(printedFont("No Such Font", device)).fixedPitch());
}

TEST_F(PrinterTest, NamesTheDocument) {
  printer.DocumentName = "heat-index";
  EXPECT_EQ(printed({"line"}).title, "heat-index");
  EXPECT_EQ(printer.device().docName(), "heat-index");
}

struct Paper {
  const char* name;
  QPageSize::PageSizeId size;
  QPageLayout::Orientation orientation;
  double points;
};

class PrinterPaper : public PrinterTest, public testing::WithParamInterface<Paper> {
 protected:
  PrinterPaper() {
    printer.device().setPageSize(QPageSize(GetParam().size));
    printer.device().setPageOrientation(GetParam().orientation);
  }
};

TEST_P(PrinterPaper, HoldsEightyColumnsBetweenTheMargins) {
  const std::string line(80, 'W');
  const PrintedPdf pdf = printed({line, line});
  ASSERT_EQ(pdf.pages.size(), 1);
  const PrintedPage& page = pdf.pages[0];
  EXPECT_EQ(page.lines, (Lines{line, line}));
  EXPECT_EQ(page.width > page.height, GetParam().orientation == QPageLayout::Landscape);
  EXPECT_NEAR(page.leftmost, 56.7, 0.5);
  EXPECT_LE(page.rightmost, page.width - 56.6);
  EXPECT_NEAR(page.pitch, 0.6 * GetParam().points, 0.02 * GetParam().points);
}

INSTANTIATE_TEST_SUITE_P(Sizes, PrinterPaper,
                         testing::Values(Paper{"A4", QPageSize::A4, QPageLayout::Portrait, 10},
                                         Paper{"Letter", QPageSize::Letter, QPageLayout::Portrait, 10},
                                         Paper{"A4Landscape", QPageSize::A4, QPageLayout::Landscape, 10},
                                         Paper{"A5", QPageSize::A5, QPageLayout::Portrait, 6.3}),
                         [](const auto& paper) { return paper.param.name; });

TEST_F(PrinterTest, HasRoomForLongerLinesInLandscape) {
  printer.device().setPageOrientation(QPageLayout::Landscape);
  EXPECT_EQ(printed({std::string(120, 'W')}).lines(), Lines{std::string(120, 'W')});
}

TEST_F(PrinterTest, LetsLinesFlowFromPageToPage) {
  const Lines lines = numbered(150);
  const PrintedPdf pdf = printed(lines);
  EXPECT_EQ(pdf.pages.size(), 3);
  EXPECT_EQ(pdf.lines(), lines);
  for (const PrintedPage& page : pdf.pages) {
    EXPECT_GE(page.topmost, 56.6);
    EXPECT_LE(page.bottommost, page.height - 56.6);
  }
}

TEST_F(PrinterTest, GivesEmptyLinesAtTheEndNoPage) {
  Lines lines = numbered(64);
  lines.resize(70);
  EXPECT_EQ(printed(lines).pages.size(), 1);
}

TEST_F(PrinterTest, PrintsADocumentOfEmptyLinesAsAnEmptyPage) { EXPECT_EQ(printed({"", ""}).pages.size(), 1); }

TEST_F(PrinterTest, DoesNotCountTrailingBlanks) {
  EXPECT_EQ(printed({"2.5" + std::string(255, ' '), "next"}).lines(), (Lines{"2.5", "next"}));
}

TEST_F(PrinterTest, WrapsALongTermBelowItsBeginning) {
  std::string line = "-1.23456789012345E-07   ";
  for (int n = 0; n < 20; ++n) line += "*(temperature" + std::to_string(n) + "-25.5)^3";
  const Lines rows = printed({line, "next"}).lines();
  ASSERT_GT(rows.size(), 5);
  std::string joined = rows[0];
  for (std::size_t n = 1; n + 1 < rows.size(); ++n) {
    EXPECT_THAT(rows[n], StartsWith(kIndent + "*(temperature"));
    joined += rows[n].substr(kIndent.size());
  }
  EXPECT_EQ(joined, line);
  EXPECT_EQ(rows.back(), "next");
}

TEST_F(PrinterTest, WrapsBetweenFactorsRatherThanInANameWithBlanks) {
  const std::string coefficient = "2                       ", factor = "*(temperature of the inlet air-0.5)";
  EXPECT_EQ(printed({coefficient + factor + factor, coefficient + "*x" + factor + factor}).lines(),
            (Lines{coefficient + factor, kIndent + factor, coefficient + "*x" + factor, kIndent + factor}));
}

TEST_F(PrinterTest, WrapsAfterABlankOrInTheMiddleOfAWord) {
  const std::string start = "           VARIABLE: ";
  const std::string word(50, 'a'), endless(120, 'b');
  EXPECT_EQ(printed({start + word + ' ' + word, start + endless}).lines(),
            (Lines{start + word, kIndent + word, start + endless.substr(0, 59), kIndent + endless.substr(0, 54),
                   kIndent + endless.substr(0, 7)}));
}

TEST_F(PrinterTest, LosesNoVisibleCharacterOfAnyLine) {
  std::string line;
  for (int n = 0; n < 500; ++n) line += static_cast<char>('!' + n * 7 % 94);
  line.insert(100, 40, ' ');
  std::string joined;
  for (const std::string& row : printed({line}).lines()) joined += row;
  EXPECT_EQ(withoutBlanks(joined), withoutBlanks(line));
}

TEST_F(PrinterTest, PrintsNamesInOtherLetters) {
  const Lines lines = {"           VARIABLE: größe", "   größe=1        FUNCTION=2", "   θ₁=0.5         FUNCTION=3",
                       "1.5                     *(Ω-0.5)^2*скорость"};
  EXPECT_EQ(printed(lines).lines(), lines);
}

TEST_F(PrinterTest, KeepsTheColumnAfterLettersThatTheFontLacks) {
  QPdfWriter device(path);
  const LineLayout layout(printedFont("Courier New", device), device, kTermIndent);
  const auto columnOf = [&](const char* line) { return layout.runs(QString::fromUtf8(line)).constLast().x; };
  EXPECT_EQ(columnOf("   温度=0.5      FUNCTION=1"), columnOf("   ab=0.5      FUNCTION=1"));
  EXPECT_EQ(columnOf("   𝛼=0.5       FUNCTION=1"), columnOf("   a=0.5       FUNCTION=1"));
}

TEST_F(PrinterTest, TakesAControlCharacterOfANameForABlank) {
  EXPECT_EQ(printed({"a\tb\nc", "next"}).lines(), (Lines{"a b c", "next"}));
}

TEST_F(PrinterTest, PrintsTheChosenPagesOnly) {
  printer.device().setPageRanges(QPageRanges::fromString("2"));
  const PrintedPdf pdf = printed(numbered(150));
  ASSERT_EQ(pdf.pages.size(), 1);
  EXPECT_EQ(pdf.pages[0].lines.front(), "line 65");
}

TEST_F(PrinterTest, SaysSoWhereNoneOfTheChosenPagesExists) {
  QString text;
  dialogs.expectAndPress("OK", &text);
  printer.device().setPageRanges(QPageRanges::fromString("4-7"));
  for (const std::string& line : numbered(150)) printer.Print(line);
  printer.EndDoc();
  EXPECT_EQ(text, "Nothing is printed: the report has no page of those chosen, only 1 to 3.");
  EXPECT_TRUE(folderIsEmpty());
}

Lines firstLines(const PrintedPdf& pdf) {
  Lines lines;
  for (const PrintedPage& page : pdf.pages) lines.push_back(page.lines.front());
  return lines;
}

TEST_F(PrinterTest, PrintsTheLastPageFirstWhereThatIsChosen) {
  printer.device().setPageOrder(QPrinter::LastPageFirst);
  EXPECT_THAT(firstLines(printed(numbered(150))), ElementsAre("line 129", "line 65", "line 1"));
}

TEST_F(PrinterTest, PrintsCopiesOneAfterTheOtherOrPageByPage) {
  printer.device().setCopyCount(2);
  EXPECT_THAT(firstLines(printed(numbered(100))), ElementsAre("line 1", "line 65", "line 1", "line 65"));
  printer.device().setCollateCopies(false);
  EXPECT_THAT(firstLines(printed(numbered(100))), ElementsAre("line 1", "line 1", "line 65", "line 65"));
}

TEST_F(PrinterTest, ThatCannotWriteItsFileIsARunTimeError) {
  path = folder.filePath("missing/report.pdf");
  printer.device().setOutputFileName(path);
  printer.Print("line");
  try {
    printer.EndDoc();
    FAIL() << "the folder is missing";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.number(), ErrorNumber::PrinterError);
    EXPECT_EQ(error.path(), path.toStdString());
  }
  EXPECT_TRUE(folderIsEmpty());
}

TEST_F(PrinterTest, NeverWritesOverAFolder) {
  printer.device().setOutputFileName(folder.path());
  printer.Print("line");
  expectError(ErrorNumber::PrinterError, [&] { printer.EndDoc(); });
  EXPECT_TRUE(folderIsEmpty());
}

#ifdef Q_OS_UNIX

TEST_F(PrinterTest, NeverReplacesWhatIsNoFile) {
  ASSERT_EQ(mkfifo(path.toLocal8Bit(), S_IRUSR | S_IWUSR), 0);
  printer.Print("line");
  expectError(ErrorNumber::PrinterError, [&] { printer.EndDoc(); });
  EXPECT_FALSE(QFileInfo(path).isFile());
}

// While it lives no file can become longer than this many bytes.
class FileSizeLimit {
 public:
  explicit FileSizeLimit(rlim_t bytes) : oldAction_(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &old_);
    const rlimit limit{bytes, old_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  FileSizeLimit(const FileSizeLimit&) = delete;
  FileSizeLimit& operator=(const FileSizeLimit&) = delete;
  ~FileSizeLimit() {
    setrlimit(RLIMIT_FSIZE, &old_);
    std::signal(SIGXFSZ, oldAction_);
  }

 private:
  rlimit old_{};
  void (*oldAction_)(int);
};

TEST_F(PrinterTest, KeepsTheOldFileWhereTheNewOneCannotBeWrittenInFull) {
  printed({"old"});
  for (const std::string& line : numbered(1000)) printer.Print(line);
  {
    const FileSizeLimit limit(2000);
    expectError(ErrorNumber::PrinterError, [&] { printer.EndDoc(); });
  }
  EXPECT_EQ(readPdf(path).lines(), Lines{"old"});
  EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList{"report.pdf"});
}

#endif

}  // namespace
}  // namespace tavimor
