#include "runtime/input_file.h"

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <cstring>
#include <utility>

#include "platform/file_query.h"
#include "runtime/bad_file.h"
#include "runtime/number_text.h"
#include "runtime/numeral.h"
#include "runtime/print_lines.h"
#include "runtime/run_time_error.h"
#include "runtime/text.h"

namespace tavimor {

namespace {

constexpr std::size_t kWindowBytes = std::size_t{256} * 1024;
constexpr std::ptrdiff_t kUsualFieldBytes = 64;  // a window with less left is filled before a number is read
constexpr const char* kTooLong = "a field that is too long";
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

FileHandle opened(const std::string& path) {
  FileHandle file = openForReading(path);
  if (!file) throw fileError(errno, path);
  return file;
}

std::uint64_t regularFileSize(std::FILE* file, const std::string& path) {
  FileFacts facts;
  if (file == nullptr) throw fileError(ENOENT, path);
  if (!queryFile(file, facts)) throw fileError(errno, path);
  if (facts.kind != FileKind::Regular) throw fileError(EISDIR, path);
  return facts.size;
}

bool isBlank(char c) { return c == ' ' || c == '\t'; }

bool equalIgnoringCase(std::string_view a, std::string_view upperCase) {
  const auto upper = [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; };
  return std::equal(a.begin(), a.end(), upperCase.begin(), upperCase.end(),
                    [&](char c, char wanted) { return upper(c) == wanted; });
}

}  // namespace

InputFile::InputFile(const std::string& path) : InputFile(opened(path), path) {}

InputFile::InputFile(FileHandle file, const std::string& path)
    : path_(path),
      file_(std::move(file)),
      unread_(regularFileSize(file_.get(), path)),
      window_(static_cast<std::size_t>(std::min<std::uint64_t>(kWindowBytes, unread_ + 1))),
      at_(window_.data()),
      last_(window_.data()) {
  fill();
  if (std::string_view(at_, static_cast<std::size_t>(last_ - at_)).starts_with(kByteOrderMark))
    at_ += kByteOrderMark.size();
}

// Moves what is left to the window's beginning and reads behind it: every pointer into the window is void then.
// False, and nothing moved, where the file has ended or the window is full.
bool InputFile::fill() {
  const auto left = static_cast<std::size_t>(last_ - at_);
  if (ended_ || left == window_.size()) return false;
  std::memmove(window_.data(), at_, left);
  const std::size_t got = std::fread(window_.data() + left, 1, window_.size() - left, file_.get());
  if (std::ferror(file_.get()) != 0) throw fileError(errno, path_);
  at_ = window_.data();
  last_ = at_ + left + got;
  unread_ -= std::min<std::uint64_t>(unread_, got);
  ended_ = std::feof(file_.get()) != 0;
  if (progress_) progress_(1.0 - static_cast<double>(unread_) / static_cast<double>(size_));
  return true;
}

const char* InputFile::afterBlanks(const char* at) const {
  while (at != last_ && isBlank(*at)) ++at;
  return at;
}

// Whether the window ends too early to tell what stands at this place.
bool InputFile::needsMore(const char* at) const { return !ended_ && (at == last_ || (*at == '\r' && at + 1 == last_)); }

// A CR that nothing follows is half of the last line's end.
bool InputFile::isFieldEnd(const char* at) const {
  if (at == last_ || *at == ',' || *at == '\n') return true;
  return *at == '\r' && (at + 1 == last_ || at[1] == '\n');
}

void InputFile::skipBlanks() {
  if (last_ - at_ < kUsualFieldBytes) fill();
  at_ = afterBlanks(at_);
  while (at_ == last_ && fill()) at_ = afterBlanks(at_);
}

InputFile::NumberField InputFile::peekNumber(const char* item) {
  skipBlanks();
  while (true) {
    const Numeral numeral = scanNumeral(at_, last_);
    const char* end = afterBlanks(numeral.end);
    if (numeral.end != at_ && isFieldEnd(end) && !needsMore(end)) return {numeral.value, end};
    if (fill()) continue;  // the window may have cut the numeral, even between "1E" and "5"
    end = std::find_if(end, last_, [this](const char& c) { return isFieldEnd(&c); });
    refuse(std::string(item) + " (a number)", needsMore(end) ? kTooLong : foundText());
  }
}

std::string_view InputFile::peekPlainField(const char* item) {
  skipBlanks();
  const char* end = at_;
  while (true) {
    while (end != last_ && !isFieldEnd(end) && !needsMore(end)) ++end;
    if (!needsMore(end)) break;
    const std::ptrdiff_t length = end - at_;
    if (!fill()) refuse(item, kTooLong);
    end = at_ + length;
  }
  if (at_ == last_) refuse(item, foundText());
  return {at_, static_cast<std::size_t>(end - at_)};
}

// The window stands at an opening quote.
const char* InputFile::findClosingQuote(const char* item) {
  const char* at = at_ + 1;
  while (true) {
    const char* behind = at;
    if (at != last_ && *at == '"') {
      behind = afterBlanks(at + 1);
      if (isFieldEnd(behind) && !needsMore(behind)) return at;
    }
    if (needsMore(behind)) {
      const std::ptrdiff_t scanned = at - at_;
      if (fill()) {
        at = at_ + scanned;
        continue;
      }
    }
    if (at == last_ || *at == '\n')
      refuse(std::string(item) + " with a closing quotation mark", foundText() + " and no such mark");
    ++at;
  }
}

void InputFile::consume(const char* end) {
  at_ = end;
  if (at_ != last_ && *at_ == '\r') ++at_;
  if (at_ == last_) return;
  if (*at_ == '\n') ++line_;
  ++at_;
}

std::string InputFile::readText(const char* item) {
  skipBlanks();
  if (at_ != last_ && *at_ == '"') {
    const char* quote = findClosingQuote(item);
    std::string text = utf8FromBytes({at_ + 1, static_cast<std::size_t>(quote - at_ - 1)});
    consume(afterBlanks(quote + 1));
    return text;
  }
  const std::string_view field = peekPlainField(item);
  std::string text = utf8FromBytes(trimmed(field));
  consume(field.data() + field.size());
  return text;
}

double InputFile::readDouble(const char* item) {
  const NumberField field = peekNumber(item);
  consume(field.end);
  return field.value;
}

Long InputFile::readLong(const char* item, Long least, Long most) {
  const NumberField field = peekNumber(item);
  const double whole = std::nearbyint(field.value);
  if (!(whole >= least && whole <= most))
    refuse(std::string(item) + " (a whole number from " + numberText(least) + " to " + numberText(most) + ")",
           foundText());
  consume(field.end);
  return toLong(whole);
}

bool InputFile::readBoolean(const char* item) {
  const std::string_view field = peekPlainField(item);
  const bool isTrue = equalIgnoringCase(trimmed(field), "#TRUE#");
  if (!isTrue && !equalIgnoringCase(trimmed(field), "#FALSE#"))
    refuse(std::string(item) + " (#TRUE# or #FALSE#)", foundText());
  consume(field.data() + field.size());
  return isTrue;
}

void InputFile::readDoubles(const char* item, std::span<double> numbers) {
  while (!numbers.empty()) {
    if (last_ - at_ < kUsualFieldBytes) fill();
    const PrintLines lines = readPrintLines(window_.data(), at_, last_, numbers);
    at_ = lines.end;
    line_ += static_cast<long>(lines.count);
    numbers = numbers.subspan(lines.count);
    if (lines.count > 0) continue;
    numbers.front() = readDouble(item);
    numbers = numbers.subspan(1);
  }
}

void InputFile::expectEnd() {
  while (true) {
    skipBlanks();
    if (needsMore(at_) && fill()) continue;
    if (at_ == last_) return;
    if (*at_ == ',' || !isFieldEnd(at_)) refuse("the end of the file", foundText());
    consume(at_);
  }
}

std::uint64_t InputFile::mostFieldsLeft() const { return (unread_ + static_cast<std::uint64_t>(last_ - at_) + 1) / 2; }

void InputFile::refuse(const std::string& expected, const std::string& found) const {
  throw BadFile(path_, line_, expected, found);
}

// What stands at this place.
std::string InputFile::foundText() const {
  if (at_ == last_) return "the end of the file";
  const char* end = at_;
  while (end != last_ && *end != '\n' && (*end != ',' || *at_ == '"')) ++end;
  std::string_view field(at_, static_cast<std::size_t>(end - at_));
  if (field.ends_with('\r')) field.remove_suffix(1);
  const std::string text = excerpt(field);
  return text.empty() ? "nothing" : '"' + text + '"';
}

}  // namespace tavimor
