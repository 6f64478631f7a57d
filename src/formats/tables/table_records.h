#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "formats/tables/table_format.h"

namespace tavimor {

/// One line of a table, or several where a quoted cell holds line ends.
struct TableRecord {
  std::string_view text;  // without its line end
  long line = 0;          // the first one, counted from 1
  bool quoted = false;    // it holds a quotation mark
};

/// Walks over the records of a text. Empty lines and comments, which begin with #, % or //, are passed over. Lines end
/// with CR LF or LF; a UTF-8 byte-order mark is skipped.
class TableRecords {
 public:
  explicit TableRecords(std::string_view text, char separator);

  /// False at the end.
  bool next(TableRecord& record);

  /// Where the next record may begin.
  const char* at() const { return at_; }
  const char* last() const { return last_; }
  long line() const { return line_; }

  /// Goes on behind a record that the caller has read for itself, `lines` lines farther.
  void moveTo(const char* at, long lines);

 private:
  const char* endOfQuotedRecord(const char* first) const;

  const char* at_;
  const char* last_;
  char separator_;
  long line_ = 1;
};

/// Cuts records into cells, trimmed. A cell in quotation marks may hold separators, line ends and doubled marks.
class CellSplitter {
 public:
  explicit CellSplitter(char separator) : separator_(separator) {}

  /// The cells stay valid until the next call, and while the text lives.
  const std::vector<std::string_view>& split(const TableRecord& record);

 private:
  void splitPlain(std::string_view text);
  void splitAtBlanks(std::string_view text);
  void splitQuoted(std::string_view text);

  char separator_;
  std::vector<std::string_view> cells_;
  std::vector<std::string> unquoted_;
};

/// Line number `line` of the text, counted from 1, as it stands; empty where the text has no such line.
std::string_view lineOfText(std::string_view text, long line);

}  // namespace tavimor
