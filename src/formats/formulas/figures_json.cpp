#include "formats/formulas/figures_json.h"

#include <nlohmann/json.hpp>

#include "formats/whole_text.h"
#include "runtime/bad_file.h"

namespace tavimor {

namespace {

using nlohmann::json;

template <class Number>
json listOf(const std::vector<std::optional<Number>>& numbers) {
  json list = json::array();
  for (const auto& number : numbers) list.push_back(number ? json(*number) : json(nullptr));
  return list;
}

template <class Number>
std::vector<std::optional<Number>> numbersOf(const json& list) {
  std::vector<std::optional<Number>> numbers;
  for (const json& one : list)
    numbers.push_back(one.is_null() ? std::nullopt : std::optional<Number>(one.get<Number>()));
  return numbers;
}

}  // namespace

std::string figuresJson(const FitFigures& figures) {
  const json text = {{"doubt", figures.doubt},
                     {"worstDigits", figures.worstDigits},
                     {"digits", listOf(figures.digits)},
                     {"standardErrors", listOf(figures.standardErrors)}};
  return text.dump(-1, ' ', false, json::error_handler_t::replace);
}

FitFigures readFiguresJson(const std::string& path) {
  try {
    const json text = json::parse(wholeText(path));
    return {text.at("doubt").get<std::string>(), text.at("worstDigits").get<Long>(), numbersOf<Long>(text.at("digits")),
            numbersOf<double>(text.at("standardErrors"))};
  } catch (const json::exception&) {
    throw BadFile(path, 1, "figures of a fit", "another text");
  }
}

}  // namespace tavimor
