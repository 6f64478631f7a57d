#include "formats/tables/table_columns.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>

#include "formats/tables/table_records.h"
#include "runtime/decimal_cells.h"
#include "runtime/numeral.h"

namespace tavimor {

namespace {

constexpr std::size_t kRowsBetweenProgress = 1 << 16;
constexpr std::size_t kSampleBytes = 1 << 16;

bool isDigit(char c) { return c >= '0' && c <= '9'; }

const char* afterBlanks(const char* at, const char* last, char separator) {
  while (at != last && (*at == ' ' || (*at == '\t' && separator != '\t'))) ++at;
  return at;
}

// Behind the line's end, or null where the line does not end here.
const char* afterLineEnd(const char* at, const char* last) {
  if (at == last) return at;
  if (*at == '\r') ++at;
  if (at == last) return at;
  return *at == '\n' ? at + 1 : nullptr;
}

// The rows from one line to the next: in most tables one column keeps its text for a while.
class PlainRows {
 public:
  PlainRows(char separator, std::size_t columns)
      : separator_(separator), cells_(columns), row_(columns), decimals_(columns) {}

  // Reads a line that holds exactly the columns' finite numbers. Returns the place behind it, null for any other line.
  // The text begins at `before`, which may be `at`.
  const char* read(const char* before, const char* at, const char* last) {
    if (const char* behind = readDecimalCells(before, at, last, separator_, decimals_)) {
      row_.swap(decimals_);
      forgetCells();
      return behind;
    }
    return readCells(at, last);
  }

  // The cells above are to be forgotten where their text goes.
  void forgetCells() { std::fill(cells_.begin(), cells_.end(), std::string_view()); }

  const std::vector<double>& row() const { return row_; }

 private:
  const char* readCells(const char* at, const char* last) {
    for (std::size_t k = 0; k < row_.size(); ++k) {
      at = readCell(afterBlanks(at, last, separator_), last, k);
      if (at == nullptr) return nullptr;
      const char* const end = at;
      at = afterBlanks(at, last, separator_);
      if (k + 1 == row_.size()) break;
      if (separator_ == kBlanks) {
        if (at == end) return nullptr;
      } else {
        if (at == last || *at != separator_) return nullptr;
        ++at;
      }
    }
    return afterLineEnd(at, last);
  }

  const char* readCell(const char* cell, const char* last, std::size_t k) {
    const std::string_view above = cells_[k];
    const char* const end = cell + above.size();
    if (!above.empty() && last - cell > std::ssize(above) && std::memcmp(cell, above.data(), above.size()) == 0 &&
        endsNumber(*end))
      return end;
    const Numeral numeral = scanNumeral(cell, last);
    if (numeral.end == cell || !std::isfinite(numeral.value)) return nullptr;
    row_[k] = numeral.value;
    cells_[k] = {cell, numeral.end};
    return numeral.end;
  }

  bool endsNumber(char c) const { return c == separator_ || c == ' ' || c == '\t' || c == '\r' || c == '\n'; }

  char separator_;
  std::vector<std::string_view> cells_;  // the text of each number in `row_`
  std::vector<double> row_;
  std::vector<double> decimals_;  // the next row, as far as it has been read
};

// Whether a number can have commas between its thousands: one to three digits that do not begin with 0, then three
// behind each comma and no more; without a comma, three digits at most. Anything else is told from thousands by sight.
bool canHaveThousands(std::string_view cell) {
  if (cell.starts_with('-') || cell.starts_with('+')) cell.remove_prefix(1);
  const std::size_t whole = std::min(cell.find(','), cell.size());
  if (whole == 0 || whole > 3 || (cell[0] == '0' && whole != cell.size())) return false;
  for (std::size_t at = whole; at < cell.size(); at += 4)
    if (cell[at] != ',' || cell.size() - at < 4 || !std::all_of(&cell[at + 1], &cell[at + 1] + 3, isDigit))
      return false;
  return std::all_of(cell.begin(), cell.begin() + static_cast<std::ptrdiff_t>(whole), isDigit);
}

// Looks for a cell that shows that commas are decimal marks.
class ThousandsWatch {
 public:
  void look(const std::vector<std::string_view>& cells) {
    for (const std::string_view cell : cells) {
      if (!cellNumber(cell, DecimalMark::Comma)) continue;
      sawComma_ = sawComma_ || cell.find(',') != std::string_view::npos;
      if (!canHaveThousands(cell)) decided_ = true;
    }
  }
  bool isDecided() const { return decided_; }
  bool isOpen() const { return sawComma_ && !decided_; }

 private:
  bool sawComma_ = false;
  bool decided_ = false;
};

class ColumnReader {
 public:
  ColumnReader(std::string_view text, const RecognisedTable& recognised)
      : format_(recognised.format),
        first_(text.data()),
        records_(text, recognised.format.separator),
        splitter_(recognised.format.separator),
        plain_(recognised.format.separator, recognised.columns) {
    table_.columns.resize(recognised.columns);
    reserve(
        std::min(expectedRows(text), text.size() / (2 * recognised.columns) + 1));  // a cell takes two bytes at least
    TableRecord head;
    for (std::size_t n = 0; n < recognised.recordsOfHead; ++n) records_.next(head);
  }

  TableColumns read(const std::function<void(double)>& progress) {
    while (readOneRow())
      if (table_.rows() % kRowsBetweenProgress == 0) progress(part());
    if (raggedCount_ > kMostNamed) table_.ragged.push_back(moreLinesAreRagged(raggedCount_ - kMostNamed));
    table_.commasMayGroupThousands = thousands_.isOpen();
    return std::move(table_);
  }

 private:
  double part() const {
    return static_cast<double>(records_.at() - first_) / static_cast<double>(records_.last() - first_);
  }

  // From the length of the first lines.
  static std::size_t expectedRows(std::string_view text) {
    const std::string_view beginning = text.substr(0, kSampleBytes);
    const auto lines = static_cast<std::size_t>(std::count(beginning.begin(), beginning.end(), '\n')) + 1;
    return text.size() / beginning.size() * lines + lines;
  }

  void reserve(std::size_t rows) {
    table_.lines.reserve(rows);
    for (TableColumn& column : table_.columns) column.numbers.reserve(rows);
  }

  bool readOneRow() {
    const char* behind = format_.mark == DecimalMark::Point ? plainRow() : plainRowWithCommas();
    if (behind == nullptr) return readRecord();
    addRow(plain_.row(), records_.line());
    records_.moveTo(behind, 1);
    return true;
  }

  const char* plainRow() {
    if (records_.at() == records_.last()) return nullptr;
    return plain_.read(first_, records_.at(), records_.last());
  }

  // The line with points for commas, where that is all that tells it from a plain row.
  const char* plainRowWithCommas() {
    if (!thousands_.isDecided() || format_.separator == ',' || records_.at() == records_.last()) return nullptr;
    const char* const at = records_.at();
    const auto rest = static_cast<std::size_t>(records_.last() - at);
    const void* const lineEnd = std::memchr(at, '\n', rest);
    const std::size_t length =
        lineEnd == nullptr ? rest : static_cast<std::size_t>(static_cast<const char*>(lineEnd) - at) + 1;
    if (std::memchr(at, '.', length) != nullptr) return nullptr;
    pointed_.assign(at, length);
    std::replace(pointed_.begin(), pointed_.end(), ',', '.');
    plain_.forgetCells();
    const char* const last = pointed_.data() + length;
    return plain_.read(pointed_.data(), pointed_.data(), last) == last ? at + length : nullptr;
  }

  void addRow(const std::vector<double>& row, long line) {
    for (std::size_t k = 0; k < row.size(); ++k) table_.columns[k].numbers.push_back(row[k]);
    table_.lines.push_back(static_cast<std::uint32_t>(line));
  }

  bool readRecord() {
    TableRecord record;
    if (!records_.next(record)) return false;
    const auto& cells = splitter_.split(record);
    if (format_.mark == DecimalMark::Comma && !thousands_.isDecided()) thousands_.look(cells);
    const std::size_t columns = table_.columns.size();
    if (cells.size() != columns) {
      if (++raggedCount_ <= kMostNamed) table_.ragged.push_back(lineIsRagged(record.line, cells.size(), columns));
      return true;
    }
    std::vector<double> row(columns);
    for (std::size_t k = 0; k < columns; ++k) row[k] = numberOrNote(cells[k], record.line, k);
    addRow(row, record.line);
    return true;
  }

  double numberOrNote(std::string_view cell, long line, std::size_t k) {
    if (const auto number = cellNumber(cell, format_.mark)) return *number;
    TableColumn& column = table_.columns[k];
    auto& cells = cell.empty() ? column.empty : column.bad;
    ++(cell.empty() ? column.emptyCount : column.badCount);
    if (cells.size() < kMostNamed) cells.push_back({k, line, std::string(cell)});
    return std::numeric_limits<double>::quiet_NaN();
  }

  TableFormat format_;
  const char* first_;
  TableRecords records_;
  CellSplitter splitter_;
  PlainRows plain_;
  std::string pointed_;
  TableColumns table_;
  ThousandsWatch thousands_;
  std::size_t raggedCount_ = 0;
};

}  // namespace

TableColumns readColumns(std::string_view text, const RecognisedTable& recognised,
                         const std::function<void(double)>& progress) {
  return ColumnReader(text, recognised).read(progress);
}

}  // namespace tavimor
