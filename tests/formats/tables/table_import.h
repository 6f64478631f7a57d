#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "formats/tables/import_table.h"

namespace tavimor::test {

/// The sentences of the refusals, or of the notes of one kind.
inline std::vector<std::string> refusals(const ImportOutcome& outcome) {
  std::vector<std::string> texts;
  for (const TableFinding& finding : outcome.findings)
    if (finding.isRefusal()) texts.push_back(finding.text);
  return texts;
}

inline std::vector<std::string> notes(const ImportOutcome& outcome, FindingKind kind) {
  std::vector<std::string> texts;
  for (const TableFinding& finding : outcome.findings)
    if (finding.kind == kind) texts.push_back(finding.text);
  return texts;
}

}  // namespace tavimor::test
