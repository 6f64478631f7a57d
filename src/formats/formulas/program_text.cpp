#include "formats/formulas/program_text.h"

namespace tavimor {

namespace {

constexpr std::size_t kColumns = 100;

// The part of the table from `first` on, along axis k and those before it.
Lines nested(const Table4& table, int k, const double* first, const std::string& open, const std::string& close,
             const Literal& literal, const std::string& indent) {
  if (k == 0) {
    Lines items;
    for (std::size_t j = 0; j < table.extent(0); ++j) items.push_back(literal(first[j]));
    Lines lines = wrapped(items, indent + " ");
    lines.front() = indent + open + lines.front().substr(indent.size() + 1);
    lines.back() += close;
    return lines;
  }
  Lines lines = {indent + open};
  for (std::size_t j = 0; j < table.extent(k); ++j) {
    for (std::string& line : nested(table, k - 1, first + j * table.stride(k), open, close, literal, indent + "  "))
      lines.push_back(std::move(line));
    if (j + 1 < table.extent(k)) lines.back() += ",";
  }
  lines.push_back(indent + close);
  return lines;
}

}  // namespace

std::string text(const Lines& lines, const std::string& prefix) {
  std::string result;
  for (const std::string& line : lines) {
    const std::string whole = prefix + line;
    result += whole.substr(0, whole.find_last_not_of(' ') + 1) + '\n';
  }
  return result;
}

std::string joined(const Lines& items, const std::string& separator) {
  std::string result;
  for (std::size_t n = 0; n < items.size(); ++n) result += (n == 0 ? "" : separator) + items[n];
  return result;
}

Lines wrapped(const Lines& items, const std::string& indent) {
  Lines lines = {indent};
  for (std::size_t n = 0; n < items.size(); ++n) {
    const std::string item = items[n] + (n + 1 < items.size() ? "," : "");
    const bool isFirst = lines.back().size() == indent.size();
    if (!isFirst && lines.back().size() + 1 + item.size() > kColumns)
      lines.push_back(indent + item);
    else
      lines.back() += (isFirst ? "" : " ") + item;
  }
  return lines;
}

Lines literals(const Table4& table, const Literal& literal) {
  Lines items;
  for (std::size_t n = 0; n < table.size(); ++n) items.push_back(literal(table.data()[n]));
  return items;
}

Lines nestedLists(const Formula& formula, const std::string& open, const std::string& close, const Literal& literal,
                  const std::string& indent) {
  return nested(formula.Coef, static_cast<int>(formula.last()), formula.Coef.data(), open, close, literal, indent);
}

Lines rowOf(const Formula& formula, const CheckPoint& check, const Literal& literal) {
  Lines row;
  for (Long k = 0; k <= formula.last(); ++k) row.push_back(literal(check.x[k]));
  row.push_back(literal(check.value));
  row.push_back(literal(check.rounding));
  return row;
}

Lines rowsOf(const Formula& formula, const Literal& literal) {
  Lines rows;
  for (const CheckPoint& check : formula.checks)
    for (std::string& number : rowOf(formula, check, literal)) rows.push_back(std::move(number));
  return rows;
}

Lines insideTests(const Formula& formula, const Lines& names, const Literal& literal) {
  Lines tests;
  for (Long k = 0; k <= formula.last(); ++k) {
    tests.push_back(names[k] + " >= " + literal(formula.variables[k].lower));
    tests.push_back(names[k] + " <= " + literal(formula.variables[k].upper));
  }
  return tests;
}

std::string offset(const std::string& name, const std::string& centre) {
  return name + " - " + (centre.starts_with('-') ? "(" + centre + ")" : centre);
}

}  // namespace tavimor
