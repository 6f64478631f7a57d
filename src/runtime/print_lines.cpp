#include "runtime/print_lines.h"

#include <algorithm>
#include <cstring>
#include <string_view>
#include <thread>

#include "runtime/numeral.h"

namespace tavimor {

namespace {

constexpr std::string_view kLineEnd = " \r\n";
constexpr std::ptrdiff_t kBytesWorthAThread = 128 * 1024;
constexpr std::size_t kUsualLineBytes = 16;  // room is made for lines of this length: growing would cost a copy

const char* readLines(const char* first, const char* last, std::size_t most, std::vector<double>& numbers) {
  const char* at = first;
  for (std::size_t n = 0; n < most && at != last; ++n) {
    const char* number = *at == ' ' ? at + 1 : at;
    const Numeral numeral = scanNumeral(number, last);
    if (numeral.end == number || last - numeral.end < std::ssize(kLineEnd)) break;
    if (std::memcmp(numeral.end, kLineEnd.data(), kLineEnd.size()) != 0) break;
    numbers.push_back(numeral.value);
    at = numeral.end + kLineEnd.size();
  }
  return at;
}

const char* lineAfterMiddle(const char* first, const char* last) {
  const char* middle = first + (last - first) / 2;
  const void* lineFeed = std::memchr(middle, '\n', static_cast<std::size_t>(last - middle));
  return lineFeed == nullptr ? last : static_cast<const char*>(lineFeed) + 1;
}

}  // namespace

const char* PrintLines::read(const char* first, const char* last, std::size_t most) {
  numbers_.clear();
  numbers_.reserve(std::min(most, static_cast<std::size_t>(last - first) / kUsualLineBytes));
  if (last - first >= kBytesWorthAThread && std::thread::hardware_concurrency() > 1)
    return readHalves(first, last, most);
  return readLines(first, last, most, numbers_);
}

const char* PrintLines::readHalves(const char* first, const char* last, std::size_t most) {
  const char* const middle = lineAfterMiddle(first, last);
  const char* secondEnd = nullptr;
  secondHalf_.clear();
  secondHalf_.reserve(numbers_.capacity() / 2);
  std::thread other([&] { secondEnd = readLines(middle, last, most, secondHalf_); });
  const char* const firstEnd = readLines(first, middle, most, numbers_);
  other.join();
  const std::size_t wanted = most - numbers_.size();
  if (firstEnd != middle || wanted == 0) return firstEnd;
  if (secondHalf_.size() > wanted) return readLines(middle, last, wanted, numbers_);
  numbers_.insert(numbers_.end(), secondHalf_.begin(), secondHalf_.end());
  return secondEnd;
}

}  // namespace tavimor
