#include "ui/restore/restore_preview.h"

#include <QStringList>
#include <algorithm>

#include "report/listing.h"
#include "report/report_lines.h"
#include "runtime/number_text.h"

namespace tavimor {

namespace {

constexpr std::size_t kMostValues = 20;

QString firstValues(const Table4& function) {
  QStringList values;
  for (std::size_t n = 0; n < std::min(kMostValues, function.size()); ++n)
    values << QString::fromStdString(numberText(function.data()[n]));
  if (function.size() > kMostValues) values << QStringLiteral("...");
  return values.join(QStringLiteral("  "));
}

}  // namespace

QString previewOf(const SessionProblem& kept) {
  if (kept.typedNames)
    return QStringLiteral("Only the names of the variables had been typed:\n%1")
        .arg(QString::fromStdString(kept.typedNames->txtVarNams));
  QStringList lines;
  const auto add = [&lines](const std::string& line) { lines << QString::fromStdString(line); };
  for (Long k = 0; k <= kept.problem.LastVar; ++k) variableLines(kept.problem, k, add);
  lines << QString();
  if (kept.fit.FitDone) statisticsLines(kept.fit, add);
  lines << QStringLiteral("FUNCTION:") << firstValues(kept.problem.F);
  while (!lines.isEmpty() && lines.first().trimmed().isEmpty()) lines.removeFirst();
  return lines.join(QLatin1Char('\n'));
}

}  // namespace tavimor
