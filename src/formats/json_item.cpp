#include "formats/json_item.h"

#include <algorithm>

#include "runtime/bad_file.h"
#include "runtime/text.h"

namespace tavimor {

namespace {

using nlohmann::json;

std::string shown(const json& value) {
  if (value.is_array()) return "an array of " + std::to_string(value.size());
  if (value.is_object()) return "an object";
  return excerpt(value.dump(-1, ' ', false, json::error_handler_t::replace));
}

bool hasNumber(const json& value) { return value.is_number() || value == "INF" || value == "-INF" || value == "NAN"; }

double numberIn(const json& value) {
  if (value.is_number()) return value.get<double>();
  if (value == "NAN") return std::numeric_limits<double>::quiet_NaN();
  return value == "INF" ? std::numeric_limits<double>::infinity() : -std::numeric_limits<double>::infinity();
}

constexpr const char* kNumber = "a number, \"INF\", \"-INF\" or \"NAN\"";

// Counts no deeper than told: a hostile text may be nested a million deep.
std::size_t scalarsIn(const json& value, Long depth) {
  if (!value.is_array() || depth == 0) return 1;
  std::size_t sum = 0;
  for (const json& element : value) sum += scalarsIn(element, depth - 1);
  return sum;
}

}  // namespace

JsonItem JsonItem::member(const char* name) const {
  if (!value_.is_object()) refuse("an object");
  const std::string place = place_.empty() ? name : place_ + "." + name;
  const auto found = value_.find(name);
  if (found == value_.end()) throw BadFile(path_, place, "an item of this name", "nothing");
  return {*found, place, path_};
}

void JsonItem::requireNoOther(std::initializer_list<std::string_view> names) const {
  if (!value_.is_object()) refuse("an object");
  for (const auto& [name, value] : value_.items())
    if (std::find(names.begin(), names.end(), name) == names.end())
      throw BadFile(path_, place_.empty() ? "the whole" : place_, "no item of another name", shown(json(name)));
}

JsonItem JsonItem::element(std::size_t i) const {
  return {value_.at(i), place_ + "[" + std::to_string(i) + "]", path_};
}

std::size_t JsonItem::count() const {
  if (!value_.is_array()) refuse("an array");
  return value_.size();
}

bool JsonItem::truth() const {
  if (!value_.is_boolean()) refuse("true or false");
  return value_.get<bool>();
}

std::string JsonItem::text() const {
  if (!value_.is_string()) refuse("a text");
  return value_.get<std::string>();
}

double JsonItem::number() const {
  if (!hasNumber(value_)) refuse(kNumber);
  return numberIn(value_);
}

Long JsonItem::whole(Long least, Long most) const {
  const bool fits = value_.is_number_integer() && value_ >= least && value_ <= most;
  if (!fits) refuse("a whole number from " + std::to_string(least) + " to " + std::to_string(most));
  return value_.get<Long>();
}

void JsonItem::numbers(double* target, std::size_t count, std::size_t stride) const {
  if (!value_.is_array() || value_.size() != count) refuse("an array of " + std::to_string(count) + " numbers");
  for (std::size_t i = 0; i < count; ++i) {
    if (!hasNumber(value_[i])) element(i).refuse(kNumber);
    target[i * stride] = numberIn(value_[i]);
  }
}

std::size_t JsonItem::scalars(Long depth) const { return scalarsIn(value_, depth); }

void JsonItem::refuse(const std::string& expected) const { throw BadFile(path_, place_, expected, shown(value_)); }

}  // namespace tavimor
