#include "windows/ChildReaper.h"

#include <poll.h>
#include <sys/eventfd.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdint>
#include <system_error>
#include <thread>

#include "windows/SignalMask.h"

namespace standin {
namespace {

// The C library's function for it cannot be called from C++ in every version.
int OpenProcess(pid_t id) {
  return static_cast<int>(syscall(SYS_pidfd_open, id, 0));
}

}  // namespace

ChildReaper& ChildReaper::Instance() {
  static ChildReaper& reaper = *new ChildReaper;
  return reaper;
}

ChildReaper::ChildReaper() : news_(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {
  if (!news_) throw std::system_error(errno, std::generic_category());
  // The thread is born with every signal blocked: the host's handlers are not meant to run on it.
  sigset_t all;
  sigfillset(&all);
  const BlockedSignals blocked(all);
  std::thread([this] { Run(); }).detach();
}

void ChildReaper::MakeRoom() {
  const std::lock_guard lock(mutex_);
  if (children_.size() == children_.capacity()) children_.reserve(2 * children_.size() + 1);
}

void ChildReaper::Watch(pid_t child) {
  const std::lock_guard lock(mutex_);
  children_.push_back({child, FileDescriptor(OpenProcess(child))});
  eventfd_write(news_.Get(), 1);
}

int ChildReaper::LiveCount() {
  const std::lock_guard lock(mutex_);
  std::erase_if(children_, Collect);
  return static_cast<int>(children_.size());
}

// True when the child has ended. Through its own descriptor no other process can be meant, even if the
// host collected the child behind our back and its number was given out again.
bool ChildReaper::Collect(const Child& child) {
  siginfo_t ended{};
  const int result = child.Process ? waitid(P_PIDFD, child.Process.Get(), &ended, WEXITED | WNOHANG)
                                   : waitid(P_PID, child.Id, &ended, WEXITED | WNOHANG);
  return result != 0 || ended.si_pid != 0;
}

void ChildReaper::Run() {
  constexpr int kRetryMilliseconds = 50;
  std::vector<pollfd> awaited;
  for (;;) {
    int timeout = -1;
    awaited.assign(1, {news_.Get(), POLLIN, 0});
    {
      const std::lock_guard lock(mutex_);
      std::erase_if(children_, Collect);
      for (const Child& child : children_) {
        if (child.Process) {
          awaited.push_back({child.Process.Get(), POLLIN, 0});
        } else {
          timeout = kRetryMilliseconds;
        }
      }
    }
    poll(awaited.data(), awaited.size(), timeout);
    eventfd_t ignored = 0;
    eventfd_read(news_.Get(), &ignored);
  }
}

}  // namespace standin
