#include "platform/decimal_separator.h"

#include <algorithm>
#include <optional>
#include <vector>

#include "platform/locale.h"

namespace tavimor {

namespace {

std::optional<std::string> keptSeparator;

void setSeparator(const std::string& text) { SetLocaleInfo(GetUserDefaultLCID(), LocaleItem::DecimalSeparator, text); }

}  // namespace

const std::string& ReadDecimalSeparator() {
  const LocaleId user = GetUserDefaultLCID();
  std::vector<char> text(GetLocaleInfo(user, LocaleItem::DecimalSeparator, {}));
  GetLocaleInfo(user, LocaleItem::DecimalSeparator, text);
  return keptSeparator.emplace(text.begin(), std::find(text.begin(), text.end(), '\0'));
}

void SetDecimalPoint() { setSeparator("."); }

void RestoreDecimalSeparator() {
  if (keptSeparator) setSeparator(*keptSeparator);
}

}  // namespace tavimor
