#pragma once

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <string>
#include <thread>

namespace zrkhost {

// One line on standard error that says, while a command works for longer than a person waits without a
// question, what goes on: the command, how many clients it has run, the seconds. It is gone when the work
// ends. While a person is asked no work goes on: that time does not count.
//
// A thread of its own writes it, because the work blocks the caller's; there is one only while a command
// works.
class ProgressLine {
public:
  // Not wanted: nothing is ever written and no thread runs. Wanted only where CanRewriteLines says so of
  // standard error, and where nothing else writes to it during the work.
  explicit ProgressLine(bool wanted) : wanted_(wanted) {}
  ProgressLine(const ProgressLine&) = delete;
  ProgressLine& operator=(const ProgressLine&) = delete;

  // From its construction to its end work goes on; there can be one at a time. `what` is UTF-8.
  class Work {
  public:
    Work(ProgressLine& line, const std::string& what);
    ~Work();
    Work(const Work&) = delete;
    Work& operator=(const Work&) = delete;

  private:
    ProgressLine& line_;
    std::jthread thread_;
  };

  // While one lives the line is not on the screen, something else may be written, and its time is not the
  // work's.
  class Hidden {
  public:
    explicit Hidden(ProgressLine& line) : lock_(line.mutex_), line_(line) { line.Wipe(); }
    ~Hidden();
    Hidden(const Hidden&) = delete;
    Hidden& operator=(const Hidden&) = delete;

  private:
    std::unique_lock<std::mutex> lock_;
    ProgressLine& line_;
    const std::chrono::steady_clock::time_point since_ = std::chrono::steady_clock::now();
  };

  void CountClientRun();

private:
  using Time = std::chrono::steady_clock::duration;

  // These four with the mutex locked.
  Time Worked() const;
  void Wipe();
  void Draw();
  std::string Text(int width) const;

  const bool wanted_;
  std::mutex mutex_;
  std::condition_variable_any ended_;
  std::string what_;
  int clientRuns_ = 0;
  // When the work began; later by all the time for which the line was hidden.
  std::chrono::steady_clock::time_point start_;
  // Columns of the line on the screen; 0 when it is not there.
  int shown_ = 0;
};

}  // namespace zrkhost
