#include "terminal/ProgressLine.h"

#include <array>
#include <cstdio>
#include <iostream>

#include "terminal/DisplayText.h"
#include "terminal/Terminal.h"

namespace zrkhost {

namespace {

// Work that is done sooner leaves the screen alone.
constexpr std::chrono::milliseconds kPatience(500);
constexpr std::chrono::milliseconds kStep(250);

}  // namespace

ProgressLine::Work::Work(ProgressLine& line, const std::string& what) : line_(line) {
  if (!line_.wanted_) return;
  line_.what_ = DisplayText(what);
  line_.clientRuns_ = 0;
  line_.start_ = std::chrono::steady_clock::now();
  thread_ = std::jthread([&line](const std::stop_token& end) {
    std::unique_lock lock(line.mutex_);
    for (Time wait = kPatience;;) {
      line.ended_.wait_for(lock, end, wait, [] { return false; });
      if (end.stop_requested()) return;
      const Time missing = kPatience - line.Worked();
      wait = missing > Time::zero() ? missing : kStep;
      if (missing <= Time::zero()) line.Draw();
    }
  });
}

ProgressLine::Work::~Work() {
  if (!line_.wanted_) return;
  thread_.request_stop();
  thread_.join();
  line_.Wipe();
}

void ProgressLine::CountClientRun() {
  const std::scoped_lock lock(mutex_);
  ++clientRuns_;
}

ProgressLine::Hidden::~Hidden() {
  line_.start_ += std::chrono::steady_clock::now() - since_;
}

ProgressLine::Time ProgressLine::Worked() const {
  return std::chrono::steady_clock::now() - start_;
}

void ProgressLine::Wipe() {
  if (shown_ > 0) std::cerr << "\r" + std::string(static_cast<std::size_t>(shown_), ' ') + "\r" << std::flush;
  shown_ = 0;
}

void ProgressLine::Draw() {
  constexpr int kUsualWidth = 80;
  const int width = TerminalWidth(kStandardError);
  // In the last column of a line some terminals go on to the next.
  const auto text = Text((width > 0 ? width : kUsualWidth) - 1);
  const int columns = DisplayWidth(text);
  const int longer = shown_ > columns ? shown_ - columns : 0;
  std::cerr << "\r" + text + std::string(static_cast<std::size_t>(longer), ' ') << std::flush;
  shown_ = columns + longer;
}

std::string ProgressLine::Text(int width) const {
  const std::chrono::duration<double> seconds = Worked();
  std::array<char, 32> number{};
  std::snprintf(number.data(), number.size(), "%.1f s", seconds.count());
  std::string rest = ": ";
  if (clientRuns_ > 0) {
    rest += std::to_string(clientRuns_) + (clientRuns_ == 1 ? " client run, " : " client runs, ");
  }
  rest += number.data();
  return CutToWidth(CutToWidth(what_, width - DisplayWidth(rest)) + rest, width);
}

}  // namespace zrkhost
