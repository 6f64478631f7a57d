#include "runtime/print_lines.h"

#include <cstring>
#include <string_view>

#include "runtime/numeral.h"

namespace tavimor {

namespace {
constexpr std::string_view kLineEnd = " \r\n";
}

const char* readPrintLines(const char* first, const char* last, std::size_t most, std::vector<double>& numbers) {
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

}  // namespace tavimor
