#include "cli/input_lines.h"

#include <array>
#include <cerrno>
#include <utility>

#include "platform/terminal.h"
#include "runtime/run_time_error.h"

namespace tavimor {

InputLines::InputLines(std::function<void()> beforeWaiting) : beforeWaiting_(std::move(beforeWaiting)) {}

std::optional<std::string> InputLines::next() {
  std::size_t scanned = 0;
  while (true) {
    const std::size_t end = pending_.find('\n', at_ + scanned);
    if (end != std::string::npos) return take(end - at_, 1);
    scanned = pending_.size() - at_;
    if (scanned >= kLongestLine) return take(kLongestLine, 0);
    if (!readMore()) break;
  }
  if (at_ == pending_.size()) return std::nullopt;
  return take(pending_.size() - at_, 0);
}

bool InputLines::readMore() {
  pending_.erase(0, at_);
  at_ = 0;
  beforeWaiting_();
  std::array<char, kLongestLine> chunk;
  const long count = readStandardInput(chunk.data(), chunk.size());
  if (count < 0) throw fileError(errno, "standard input");
  pending_.append(chunk.data(), static_cast<std::size_t>(count));
  return count > 0;
}

std::string InputLines::take(std::size_t length, std::size_t separator) {
  std::string line = pending_.substr(at_, length);
  at_ += length + separator;
  return line;
}

}  // namespace tavimor
