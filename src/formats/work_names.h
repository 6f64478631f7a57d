#pragma once

#include <string>
#include <string_view>

namespace tavimor {

/// The names beside a problem's file that a save uses for a while. FilePair says what for; SaveLock has one more.
std::string newName(const std::string& target);
std::string oldName(const std::string& target);
std::string backName(const std::string& target);

/// A name that no other save uses: the target's with ".tavimor-" and eight hexadecimal digits behind it.
std::string ownName(const std::string& target);

/// Whether `name` is one that ownName gives for the file name `target`.
bool isOwnName(std::string_view name, std::string_view target);

/// Whether a path ends as one of these names does.
bool isWorkName(std::string_view path);

}  // namespace tavimor
