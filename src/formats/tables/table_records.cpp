#include "formats/tables/table_records.h"

#include <csv.h>

#include <algorithm>
#include <cstring>
#include <memory>
#include <new>

#include "runtime/text.h"

namespace tavimor {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::ptrdiff_t kLongestRecord = std::ptrdiff_t{256} * 1024;  // a mark that is never closed ends here

const char* lineEnd(const char* at, const char* last) {
  const void* end = std::memchr(at, '\n', static_cast<std::size_t>(last - at));
  return end == nullptr ? last : static_cast<const char*>(end);
}

bool isBlank(char c) { return c == ' ' || c == '\t'; }

bool isComment(std::string_view text) {
  return text.starts_with('#') || text.starts_with('%') || text.starts_with("//");
}

struct FreeParser {
  void operator()(csv_parser* parser) const {
    csv_free(parser);
    delete parser;
  }
};

std::unique_ptr<csv_parser, FreeParser> quotedParser(char separator) {
  auto parser = std::make_unique<csv_parser>();
  if (csv_init(parser.get(), CSV_EMPTY_IS_NULL) != 0) throw std::bad_alloc();
  csv_set_delim(parser.get(), static_cast<unsigned char>(separator));
  return std::unique_ptr<csv_parser, FreeParser>(parser.release());
}

// A cell that nothing stands in, not even quotation marks, comes as a null pointer.
struct QuotedCells {
  std::vector<std::string>& cells;
  bool blanksSeparate;

  static void take(void* cell, std::size_t length, void* self) {
    auto& taken = *static_cast<QuotedCells*>(self);
    if (cell == nullptr && taken.blanksSeparate) return;
    taken.cells.emplace_back(cell == nullptr ? std::string() : std::string(static_cast<const char*>(cell), length));
  }
  static void endRecord(int, void*) {}
};

}  // namespace

TableRecords::TableRecords(std::string_view text, char separator)
    : at_(text.data()), last_(text.data() + text.size()), separator_(separator) {
  if (text.starts_with(kByteOrderMark)) at_ += kByteOrderMark.size();
}

void TableRecords::moveTo(const char* at, long lines) {
  at_ = at;
  line_ += lines;
}

bool TableRecords::next(TableRecord& record) {
  while (at_ != last_) {
    const char* const first = at_;
    const char* end = lineEnd(first, last_);
    const auto length = [&] { return static_cast<std::size_t>(end - first); };
    std::string_view text(first, length());
    record.quoted = std::memchr(first, '"', length()) != nullptr;
    record.line = line_;
    if (record.quoted && !isComment(trimmed(text))) {
      end = endOfQuotedRecord(first);
      text = {first, length()};
    }
    line_ += 1 + static_cast<long>(std::count(text.begin(), text.end(), '\n'));
    at_ = end == last_ ? last_ : end + 1;
    if (text.ends_with('\r')) text.remove_suffix(1);
    const std::string_view content = trimmed(text);
    if (content.empty() || isComment(content)) continue;
    record.text = text;
    return true;
  }
  return false;
}

// A mark opens a quoted cell only where a cell begins; elsewhere it is a character like any other.
const char* TableRecords::endOfQuotedRecord(const char* first) const {
  const char* const farthest = last_ - first > kLongestRecord ? first + kLongestRecord : last_;
  bool atCell = true;
  bool inside = false;
  for (const char* at = first; at != farthest; ++at) {
    if (inside) {
      if (*at == '"') inside = false;
    } else if (*at == '"') {
      inside = atCell || (at != first && at[-1] == '"');
    } else if (*at == '\n') {
      return at;
    } else {
      atCell = *at == separator_ || (isBlank(*at) && (atCell || separator_ == kBlanks));
    }
  }
  return inside ? lineEnd(first, last_) : farthest;
}

const std::vector<std::string_view>& CellSplitter::split(const TableRecord& record) {
  cells_.clear();
  if (record.quoted)
    splitQuoted(record.text);
  else if (separator_ == kBlanks)
    splitAtBlanks(record.text);
  else
    splitPlain(record.text);
  return cells_;
}

void CellSplitter::splitPlain(std::string_view text) {
  while (true) {
    const std::size_t end = text.find(separator_);
    cells_.push_back(trimmed(text.substr(0, end)));
    if (end == std::string_view::npos) return;
    text.remove_prefix(end + 1);
  }
}

void CellSplitter::splitAtBlanks(std::string_view text) {
  constexpr std::string_view blanks = " \t";
  std::size_t first = text.find_first_not_of(blanks);
  while (first != std::string_view::npos) {
    const std::size_t end = std::min(text.find_first_of(blanks, first), text.size());
    cells_.push_back(text.substr(first, end - first));
    first = text.find_first_not_of(blanks, end);
  }
}

void CellSplitter::splitQuoted(std::string_view text) {
  unquoted_.clear();
  std::string copy(text);
  if (separator_ == kBlanks) std::replace(copy.begin(), copy.end(), '\t', kBlanks);
  QuotedCells taken{unquoted_, separator_ == kBlanks};
  const auto parser = quotedParser(separator_);
  const bool parsed = csv_parse(parser.get(), copy.data(), copy.size(), QuotedCells::take, QuotedCells::endRecord,
                                &taken) == copy.size() &&
                      csv_fini(parser.get(), QuotedCells::take, QuotedCells::endRecord, &taken) == 0;
  if (!parsed) throw std::bad_alloc();
  for (const std::string& cell : unquoted_) cells_.push_back(trimmed(cell));
}

std::string_view lineOfText(std::string_view text, long line) {
  const char* at = text.data();
  const char* const last = at + text.size();
  for (long n = 1; n < line && at != last; ++n) {
    at = lineEnd(at, last);
    if (at != last) ++at;
  }
  std::string_view found(at, static_cast<std::size_t>(lineEnd(at, last) - at));
  if (found.ends_with('\r')) found.remove_suffix(1);
  return found;
}

}  // namespace tavimor
