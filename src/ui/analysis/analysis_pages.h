#pragma once

#include <vector>

namespace tavimor {

class AnalysisLink;
class AnalysisPage;

/// The pages of the analysis window from left to right. The link must outlive them.
std::vector<AnalysisPage*> makeAnalysisPages(AnalysisLink& link);

}  // namespace tavimor
