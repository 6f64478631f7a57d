#pragma once

#include <initializer_list>
#include <limits>
#include <nlohmann/json.hpp>
#include <string>
#include <string_view>
#include <utility>

#include "runtime/long.h"

namespace tavimor {

/// An item of a JSON text and its place there, "variables[1].degree", for errors.
/// Errors: each reading throws a BadFile with the place where the item is of another kind.
class JsonItem {
 public:
  JsonItem(const nlohmann::json& value, std::string place, const std::string& path)
      : value_(value), place_(std::move(place)), path_(path) {}

  /// A member of an object.
  JsonItem member(const char* name) const;

  /// Refuses an object with a member that is none of these names.
  void requireNoOther(std::initializer_list<std::string_view> names) const;

  /// An element of an array, and their number.
  JsonItem element(std::size_t i) const;
  std::size_t count() const;

  bool isNull() const { return value_.is_null(); }
  bool truth() const;
  std::string text() const;
  double number() const;
  Long whole(Long least, Long most = std::numeric_limits<Long>::max() - 1) const;

  /// The numbers of an array of `count`, each to its place at a distance of `stride` from the one before.
  void numbers(double* target, std::size_t count, std::size_t stride) const;

  /// How many scalars an array holds, with those of arrays nested up to `depth` deep.
  std::size_t scalars(Long depth) const;

  [[noreturn]] void refuse(const std::string& expected) const;

 private:
  const nlohmann::json& value_;
  std::string place_;
  const std::string& path_;
};

}  // namespace tavimor
