#include "formats/tables/recognise_table.h"

#include <algorithm>
#include <map>
#include <set>
#include <string>

#include "formats/tables/table_records.h"
#include "runtime/text.h"

namespace tavimor {

namespace {

constexpr std::size_t kSampleRecords = 200;
constexpr std::size_t kMostHeadRecords = 2;  // the heading and the units

struct SampleRow {
  long line;
  std::vector<std::string> cells;
  std::vector<std::optional<double>> numbers;

  bool hasNumber() const {
    return std::any_of(numbers.begin(), numbers.end(), [](const auto& number) { return number.has_value(); });
  }
  bool isAllNumbers(std::size_t from) const {
    return numbers.size() > from && std::all_of(numbers.begin() + static_cast<std::ptrdiff_t>(from), numbers.end(),
                                                [](const auto& number) { return number.has_value(); });
  }
};

// The first records under one format, and how good that format is.
struct Reading {
  TableFormat format;
  std::vector<SampleRow> rows;
  std::size_t columns = 0;
  double score = 0.0;  // the sum over the records of that many columns of the part of their cells that is numbers
};

std::size_t mostFrequentCount(const std::vector<SampleRow>& rows) {
  std::map<std::size_t, std::size_t> records;
  for (std::size_t n = 0; n < rows.size(); ++n) ++records[rows[n].cells.size()];
  // In a short table the head must not outvote the numbers: the last record counts half a vote more than any other.
  const auto votes = [&](const auto& entry) {
    return 2 * entry.second + (entry.first == rows.back().cells.size() ? 1 : 0);
  };
  return std::max_element(records.begin(), records.end(),
                          [&](const auto& a, const auto& b) { return votes(a) < votes(b); })
      ->first;
}

void rate(Reading& reading) {
  if (reading.rows.empty()) return;
  reading.columns = mostFrequentCount(reading.rows);
  if (reading.columns < 2) return;
  for (const SampleRow& row : reading.rows) {
    if (row.cells.size() != reading.columns) continue;
    const auto numbers =
        std::count_if(row.numbers.begin(), row.numbers.end(), [](const auto& n) { return n.has_value(); });
    reading.score += static_cast<double>(numbers) / static_cast<double>(reading.columns);
  }
}

Reading readSample(std::string_view text, const TableFormat& format) {
  Reading reading{format, {}};
  TableRecords records(text, format.separator);
  CellSplitter splitter(format.separator);
  TableRecord record;
  while (reading.rows.size() < kSampleRecords && records.next(record)) {
    SampleRow& row = reading.rows.emplace_back(SampleRow{record.line, {}, {}});
    for (const std::string_view cell : splitter.split(record)) {
      row.cells.emplace_back(cell);
      row.numbers.push_back(cellNumber(cell, format.mark));
    }
  }
  rate(reading);
  return reading;
}

std::vector<TableFormat> formatsToTry(const ImportOptions& options) {
  const std::vector<char> separators =
      options.separator ? std::vector<char>{*options.separator} : std::vector<char>{',', ';', '\t', kBlanks};
  std::vector<TableFormat> formats;
  for (const DecimalMark mark : {DecimalMark::Point, DecimalMark::Comma})
    for (const char separator : separators)
      if (!options.mark || *options.mark == mark) formats.push_back({separator, mark});
  return formats;
}

bool sameNumbers(const Reading& a, const Reading& b) {
  const auto numbersOf = [](const Reading& reading) {
    std::vector<double> numbers;
    for (const SampleRow& row : reading.rows)
      for (const auto& number : row.numbers)
        if (number && row.cells.size() == reading.columns) numbers.push_back(*number);
    return numbers;
  };
  return numbersOf(a) == numbersOf(b);
}

std::string readingText(const Reading& reading) {
  const auto row =
      std::find_if(reading.rows.begin(), reading.rows.end(), [](const SampleRow& r) { return r.hasNumber(); });
  std::vector<std::string> cells;
  for (const std::string& cell : row->cells) cells.push_back(cell.empty() ? "nothing" : excerpt(cell));
  return formatText(reading.format) + ", so that line " + std::to_string(row->line) + " is " + listText(cells);
}

// The head of a list: a heading whose cells are no numbers, and a line of units likewise.
void findHead(const Reading& reading, Heading heading, RecognisedTable& recognised) {
  if (heading == Heading::No) return;
  const auto isHead = [&](std::size_t n) { return n < reading.rows.size() && !reading.rows[n].hasNumber(); };
  if (heading == Heading::Find && !isHead(0)) return;
  const SampleRow& names = reading.rows.front();
  recognised.headingLine = names.line;
  recognised.recordsOfHead = 1;
  for (const std::string& cell : names.cells) recognised.names.push_back(utf8FromBytes(cell));
  if (!isHead(1) || recognised.recordsOfHead == kMostHeadRecords) return;
  recognised.recordsOfHead = 2;
  recognised.unitsLine = reading.rows[1].line;
  for (const std::string& cell : reading.rows[1].cells) recognised.units.push_back(utf8FromBytes(cell));
}

std::vector<double> numbersFrom(const SampleRow& row, std::size_t first) {
  std::vector<double> numbers;
  for (std::size_t n = first; n < row.numbers.size(); ++n) numbers.push_back(row.numbers[n].value_or(0.0));
  return numbers;
}

bool isStrictlyMonotone(const std::vector<double>& values) {
  const auto step = [&](auto compare) {
    return std::adjacent_find(values.begin(), values.end(), [&](double a, double b) { return !compare(a, b); }) ==
           values.end();
  };
  return step(std::less<>()) || step(std::greater<>());
}

bool areDistinct(const std::vector<double>& values) {
  return std::set<double>(values.begin(), values.end()).size() == values.size();
}

bool firstColumnCanBeAVariable(const Reading& reading) {
  std::vector<double> values;
  for (std::size_t n = 1; n < reading.rows.size(); ++n) {
    if (reading.rows[n].numbers.empty() || !reading.rows[n].numbers.front()) return false;
    values.push_back(*reading.rows[n].numbers.front());
  }
  return areDistinct(values);
}

// The first row holds one value less than there are columns, or a corner that is no number before its values.
void findCertainCrossTable(const Reading& reading, RecognisedTable& recognised) {
  const SampleRow& first = reading.rows.front();
  const bool withoutCorner = first.cells.size() + 1 == reading.columns && reading.columns >= 3;
  const bool withCorner = first.cells.size() == reading.columns && reading.columns >= 3 && !first.numbers.front();
  const std::size_t from = withCorner ? 1 : 0;
  if (!(withoutCorner || withCorner) || !first.isAllNumbers(from)) return;
  const std::vector<double> across = numbersFrom(first, from);
  if (!areDistinct(across) || !firstColumnCanBeAVariable(reading)) return;
  recognised.cross = CrossTable::Certain;
  recognised.across = across;
  recognised.corner = withCorner ? utf8FromBytes(first.cells.front()) : "";
  recognised.recordsOfHead = 1;
}

// All is numbers, the corner too: only the order of the first row and of the first column speaks for a cross table.
bool isPossibleCrossTable(const Reading& reading) {
  if (reading.columns < 3 || reading.rows.size() < 3) return false;
  const SampleRow& first = reading.rows.front();
  if (first.cells.size() != reading.columns || !first.isAllNumbers(0)) return false;
  std::vector<double> down;
  for (std::size_t n = 1; n < reading.rows.size(); ++n) {
    if (!reading.rows[n].numbers.front()) return false;
    down.push_back(*reading.rows[n].numbers.front());
  }
  return isStrictlyMonotone(numbersFrom(first, 1)) && isStrictlyMonotone(down);
}

void findForm(const Reading& reading, const ImportOptions& options, RecognisedTable& recognised) {
  const bool listIsTold = options.form == TableForm::List || !options.columns.empty();
  if (!listIsTold && options.heading != Heading::Yes) {
    findCertainCrossTable(reading, recognised);
    if (recognised.cross == CrossTable::Certain) return;
    if (isPossibleCrossTable(reading)) recognised.cross = CrossTable::Possible;
  }
  findHead(reading, options.heading, recognised);
}

std::vector<TableFinding> raggedHead(const Reading& reading, const RecognisedTable& recognised) {
  std::vector<TableFinding> findings;
  for (std::size_t n = 0; recognised.cross != CrossTable::Certain && n < recognised.recordsOfHead; ++n) {
    const SampleRow& row = reading.rows[n];
    if (row.cells.size() != reading.columns)
      findings.push_back(lineIsRagged(row.line, row.cells.size(), reading.columns));
  }
  return findings;
}

bool isUnsignedWhole(const std::string& cell) {
  return !cell.empty() && std::all_of(cell.begin(), cell.end(), [](char c) { return c >= '0' && c <= '9'; });
}

bool isWhole(const std::string& cell) { return isUnsignedWhole(cell.starts_with('-') ? cell.substr(1) : cell); }

// In the reading of commas as separators alone, each second cell can be the digits behind a decimal comma.
bool commasMayDoTwoThings(const Reading& reading, std::size_t recordsOfHead) {
  if (reading.format.separator != ',' || reading.columns < 4 || reading.columns % 2 != 0) return false;
  for (std::size_t n = recordsOfHead; n < reading.rows.size(); ++n) {
    const auto& cells = reading.rows[n].cells;
    if (cells.size() != reading.columns) return false;
    for (std::size_t c = 0; c < cells.size(); ++c)
      if (!(c % 2 == 0 ? isWhole(cells[c]) : isUnsignedWhole(cells[c]))) return false;
  }
  return true;
}

bool looksLikeWideText(std::string_view text) {
  return text.starts_with("\xFF\xFE") || text.starts_with("\xFE\xFF") ||
         text.substr(0, 1000).find('\0') != std::string_view::npos;
}

}  // namespace

std::vector<TableFinding> recogniseTable(std::string_view text, const ImportOptions& options,
                                         RecognisedTable& recognised) {
  if (looksLikeWideText(text)) return {isNoUtf8()};
  std::vector<Reading> readings;
  for (const TableFormat& format : formatsToTry(options)) readings.push_back(readSample(text, format));
  const auto best = std::max_element(readings.begin(), readings.end(),
                                     [](const Reading& a, const Reading& b) { return a.score < b.score; });
  if (best->score <= 0.0) return {isNoTable()};
  for (const Reading& other : readings)
    if (other.score == best->score && !sameNumbers(*best, other))
      return {formatIsAmbiguous({readingText(*best), readingText(other)})};
  recognised.format = best->format;
  recognised.columns = best->columns;
  findForm(*best, options, recognised);
  recognised.commasMayDoTwoThings =
      recognised.names.size() != recognised.columns && commasMayDoTwoThings(*best, recognised.recordsOfHead);
  if (recognised.commasMayDoTwoThings && recognised.names.size() == recognised.columns / 2)
    return {commasDoTwoThings()};
  return raggedHead(*best, recognised);
}

}  // namespace tavimor
