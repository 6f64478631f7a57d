#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "formats/formulas/formula.h"

namespace tavimor {

/// What a format is made of: a text, or bytes that no one reads; Problem is the text of the whole problem, to which
/// the options of a formula do not apply.
enum class ExportKind { Text, Bytes, Problem };

/// A form in which a formula goes out.
struct ExportFormat {
  std::string_view name;    // as the command line knows it
  std::string_view ending;  // of its files
  std::string_view title;   // as the window offers it
  ExportKind kind;
  std::string (*write)(const Problem& problem, const Fit& fit, const FormulaOptions& options);
};

/// All of them, in the order in which they are offered.
std::span<const ExportFormat> exportFormats();

/// The format of that name; null where there is none.
const ExportFormat* exportFormat(std::string_view name);

/// The name that a formula gets from its problem's file: the last part of the path without its ending.
std::string formulaNameOf(const std::string& path);

}  // namespace tavimor
