#include "cli/point.h"

#include "runtime/numeral.h"

namespace tavimor {

namespace {

constexpr std::string_view kBlanks = " \t\r";

const char* afterBlanks(const char* at, const char* last) {
  while (at != last && kBlanks.find(*at) != std::string_view::npos) ++at;
  return at;
}

// Where the next number begins, or null where nothing stands between it and the last one.
const char* afterSeparator(const char* at, const char* last) {
  const char* next = afterBlanks(at, last);
  if (next != last && *next == ',') return afterBlanks(next + 1, last);
  return next == at ? nullptr : next;
}

}  // namespace

std::optional<PerVariable<double>> parsePoint(std::string_view line, Long count) {
  const char* const last = line.data() + line.size();
  const char* at = afterBlanks(line.data(), last);
  PerVariable<double> point{};
  for (Long v = 0; v < count; ++v) {
    if (v > 0) at = afterSeparator(at, last);
    if (at == nullptr) return std::nullopt;
    const Numeral numeral = scanNumeral(at, last);
    if (numeral.end == at) return std::nullopt;
    point[v] = numeral.value;
    at = numeral.end;
  }
  if (afterBlanks(at, last) != last) return std::nullopt;
  return point;
}

}  // namespace tavimor
