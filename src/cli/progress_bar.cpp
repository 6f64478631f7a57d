#include "cli/progress_bar.h"

#include <algorithm>
#include <cstdio>
#include <string>

#include "platform/terminal.h"

namespace tavimor {

namespace {

using namespace std::chrono_literals;

constexpr auto kPatience = 500ms;  // work that ends sooner shows no bar
constexpr auto kInterval = 100ms;
constexpr int kWidth = 40;

}  // namespace

ProgressBar::ProgressBar() : visible_(standardErrorIsTerminal()), nextUpdate_(Clock::now() + kPatience) {}

ProgressBar::~ProgressBar() {
  if (drawn_) std::fputs("\r\x1B[K", stderr);
}

void ProgressBar::show(double share) {
  if (!visible_ || Clock::now() < nextUpdate_) return;
  nextUpdate_ = Clock::now() + kInterval;
  drawn_ = true;
  const int filled = std::clamp(static_cast<int>(share * kWidth), 0, kWidth);
  const std::string bar(static_cast<std::size_t>(filled), '#');
  std::fprintf(stderr, "\r[%-*s] %3d %%", kWidth, bar.c_str(), static_cast<int>(share * 100));
  std::fflush(stderr);
}

}  // namespace tavimor
