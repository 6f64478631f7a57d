#include "runtime/text.h"

#include <algorithm>

namespace tavimor {

namespace {

bool isContinuation(char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; }

// The length of the character whose lead byte this is, 0 for a byte that leads none.
std::size_t lengthByLead(unsigned char lead) {
  if (lead < 0x80) return 1;
  if (lead >= 0xC2 && lead <= 0xDF) return 2;
  if (lead >= 0xE0 && lead <= 0xEF) return 3;
  if (lead >= 0xF0 && lead <= 0xF4) return 4;
  return 0;
}

// Overlong forms, surrogates and values past U+10FFFF are told by the second byte (Unicode Standard, table 3-7).
bool secondByteFits(unsigned char lead, unsigned char second) {
  switch (lead) {
    case 0xE0: return second >= 0xA0;
    case 0xED: return second <= 0x9F;
    case 0xF0: return second >= 0x90;
    case 0xF4: return second <= 0x8F;
    default: return true;
  }
}

// The length of the well-formed character at the beginning of the text, 0 where there is none.
std::size_t leadingCharacter(std::string_view text) {
  const auto lead = static_cast<unsigned char>(text[0]);
  const std::size_t length = lengthByLead(lead);
  if (length == 0 || length > text.size()) return 0;
  const std::string_view rest = text.substr(1, length - 1);
  if (!std::all_of(rest.begin(), rest.end(), isContinuation)) return 0;
  if (length > 1 && !secondByteFits(lead, static_cast<unsigned char>(text[1]))) return 0;
  return length;
}

void appendEscape(std::string& text, unsigned char byte) {
  constexpr std::string_view digits = "0123456789ABCDEF";
  switch (byte) {
    case '\n': text += "\\n"; return;
    case '\r': text += "\\r"; return;
    case '\t': text += "\\t"; return;
    default: text += {'\\', 'x', digits[byte >> 4], digits[byte & 0xF]};
  }
}

// U+0000 to U+001F, U+007F to U+009F, and U+2028 and U+2029, which end a line as well.
bool isControl(std::string_view character) {
  const auto lead = static_cast<unsigned char>(character[0]);
  if (character.size() == 1) return lead < ' ' || lead == 0x7F;
  if (character.size() == 2) return lead == 0xC2 && static_cast<unsigned char>(character[1]) < 0xA0;
  return character == "\u2028" || character == "\u2029";
}

void appendLatin1(std::string& utf8, unsigned char byte) {
  utf8.push_back(static_cast<char>(0xC0 | (byte >> 6)));
  utf8.push_back(static_cast<char>(0x80 | (byte & 0x3F)));
}

std::size_t byteOfCharacter(std::string_view text, std::size_t character) {
  std::size_t byte = 0;
  while (byte < text.size() && character > 0) {
    do ++byte;
    while (byte < text.size() && isContinuation(text[byte]));
    --character;
  }
  return byte;
}

}  // namespace

std::string utf8FromBytes(std::string_view bytes) {
  std::string utf8;
  utf8.reserve(bytes.size());
  while (!bytes.empty()) {
    const std::size_t length = leadingCharacter(bytes);
    if (length == 0)
      appendLatin1(utf8, static_cast<unsigned char>(bytes[0]));
    else
      utf8.append(bytes.substr(0, length));
    bytes.remove_prefix(std::max<std::size_t>(length, 1));
  }
  return utf8;
}

std::string withEscapes(std::string_view text) {
  std::string escaped;
  while (!text.empty()) {
    const std::size_t length = leadingCharacter(text);
    const std::string_view character = text.substr(0, std::max<std::size_t>(length, 1));
    if (length > 0 && !isControl(character))
      escaped += character;
    else
      for (const char byte : character) appendEscape(escaped, static_cast<unsigned char>(byte));
    text.remove_prefix(character.size());
  }
  return escaped;
}

std::string excerpt(std::string_view bytes, std::size_t characters) {
  const std::string whole = utf8FromBytes(trimmed(bytes));
  std::string beginning(firstCharacters(whole, characters));
  for (char& c : beginning)
    if (static_cast<unsigned char>(c) < ' ' || c == '\x7F') c = '?';
  return beginning;
}

std::size_t characterCount(std::string_view text) {
  return text.size() - static_cast<std::size_t>(std::count_if(text.begin(), text.end(), isContinuation));
}

std::string_view firstCharacters(std::string_view text, std::size_t count) {
  return text.substr(0, byteOfCharacter(text, count));
}

std::string overlaid(std::string_view line, std::size_t column, std::string_view insert) {
  const std::size_t length = characterCount(line);
  const std::size_t before = std::min(column - 1, length);
  const std::size_t fitting = std::min(characterCount(insert), length - before);
  std::string result(firstCharacters(line, before));
  result.append(firstCharacters(insert, fitting));
  result.append(line.substr(byteOfCharacter(line, before + fitting)));
  return result;
}

std::string_view trimmed(std::string_view text) {
  constexpr std::string_view blanks = " \t";
  const std::size_t first = text.find_first_not_of(blanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

}  // namespace tavimor
