#pragma once

#include <csignal>

#include <cerrno>

namespace standin {

inline sigset_t BrokenPipeSignal() {
  sigset_t set{};
  sigemptyset(&set);
  sigaddset(&set, SIGPIPE);
  return set;
}

// Blocks signals in this thread for as long as it lives.
class BlockedSignals {
public:
  explicit BlockedSignals(const sigset_t& signals) { pthread_sigmask(SIG_BLOCK, &signals, &before_); }
  BlockedSignals(const BlockedSignals&) = delete;
  BlockedSignals& operator=(const BlockedSignals&) = delete;
  ~BlockedSignals() { pthread_sigmask(SIG_SETMASK, &before_, nullptr); }

private:
  sigset_t before_{};
};

// Takes away the SIGPIPE that writing to a pipe without a reader raises in the writing thread: the host
// did not ask for that pipe and must not end by it. One that was pending before stays.
class NoBrokenPipeSignal {
public:
  NoBrokenPipeSignal() = default;
  NoBrokenPipeSignal(const NoBrokenPipeSignal&) = delete;
  NoBrokenPipeSignal& operator=(const NoBrokenPipeSignal&) = delete;
  ~NoBrokenPipeSignal() {
    if (wasPending_) return;
    constexpr timespec DoNotWait{0, 0};
    while (sigtimedwait(&signal_, nullptr, &DoNotWait) < 0 && errno == EINTR) {
    }
  }

private:
  static bool IsPending() {
    sigset_t pending{};
    sigpending(&pending);
    return sigismember(&pending, SIGPIPE) == 1;
  }

  sigset_t signal_ = BrokenPipeSignal();
  bool wasPending_ = IsPending();
  BlockedSignals blocked_{signal_};
};

}  // namespace standin
