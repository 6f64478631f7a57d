#include "runtime/print_lines.h"

#include <cstring>
#include <string_view>

#include "runtime/numeral.h"

namespace tavimor {

namespace {

constexpr std::string_view kLineEnd = " \r\n";

bool isLineEnd(const char* at) { return std::memcmp(at, kLineEnd.data(), kLineEnd.size()) == 0; }

const char* readAnyLine(const char* at, const char* last, double& number) {
  const char* first = *at == ' ' ? at + 1 : at;
  const Numeral numeral = scanNumeral(first, last);
  if (numeral.end == first || last - numeral.end < std::ssize(kLineEnd) || !isLineEnd(numeral.end)) return nullptr;
  number = numeral.value;
  return numeral.end + kLineEnd.size();
}

}  // namespace

PrintLines readPrintLines(const char* before, const char* first, const char* last, std::span<double> numbers) {
  PrintLines lines{first, 0};
  while (true) {
    const PrintLines decimals = readDecimalLines(before, lines.end, last, numbers.subspan(lines.count));
    lines = {decimals.end, lines.count + decimals.count};
    if (lines.count == numbers.size() || lines.end == last) return lines;
    const char* end = readAnyLine(lines.end, last, numbers[lines.count]);
    if (end == nullptr) return lines;
    lines = {end, lines.count + 1};
  }
}

}  // namespace tavimor
