#include "cli/fit_check.h"

#include "analysis/right_digits.h"

namespace tavimor {

namespace {

std::string whereMoreIsTold(const std::string& path) { return "; \"tavimor-cli analyse " + path + "\" tells more"; }

std::string fewDigitsText(double digits) {
  const int shown = shownDigits(digits);
  if (shown == 0) return "no digit of the worst coefficient is right";
  return "only " + std::to_string(shown) + (shown == 1 ? " digit" : " digits") + " of the worst coefficient " +
         (shown == 1 ? "is" : "are") + " right";
}

}  // namespace

std::optional<std::string> warningOf(const SecondOpinion& opinion, const OpenedProblem& opened,
                                     const std::string& path) {
  const Finding& finding = opinion.precise.finding;
  if (finding.verdict == Verdict::NotDetermined)
    return "the data determine no fit: " + reasonText(finding, opened.problem) + whereMoreIsTold(path);
  if (finding.verdict == Verdict::NotCertified)
    return "how many digits are right cannot be certified: " + reasonText(finding, opened.problem) +
           whereMoreIsTold(path);
  if (!opinion.isExact() || !opened.fit.FitDone) return std::nullopt;
  const double digits = listedDigits(opened.fit, opinion.precise).worst;
  if (digits >= kFewDigits) return std::nullopt;
  return fewDigitsText(digits) + whereMoreIsTold(path);
}

}  // namespace tavimor
