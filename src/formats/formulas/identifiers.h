#pragma once

#include <set>
#include <string>
#include <string_view>

namespace tavimor {

enum class LetterCase { Matters, DoesNotMatter };

/// The names of one program text: each legal in every language that is written here (letters, digits and underscores
/// of ASCII, a letter first, 50 characters at most), none a reserved word, none twice. The reserved words stand in one
/// text with a blank between two.
class Identifiers {
 public:
  explicit Identifiers(std::string_view reserved, LetterCase letterCase = LetterCase::Matters);

  /// A name like the wish: letters of German, French and the like and of Greek are written out, what else is no letter
  /// or digit becomes "_", `first` is put before a name that begins with none, and "_2", "_3" ... stands behind one
  /// that is taken.
  std::string make(std::string_view wish, char first);

 private:
  bool take(const std::string& name);

  LetterCase letterCase_;
  std::set<std::string> taken_;
};

}  // namespace tavimor
