#pragma once

#include <sys/types.h>

#include <mutex>
#include <vector>

#include "windows/FileDescriptor.h"

namespace standin {

// Collects the children that CreateProcessW started as they end, so that none stays a zombie: callers
// do not wait for them. A thread of its own sleeps until one of them ends. The host's other children and
// what it does on SIGCHLD are left alone.
class ChildReaper {
public:
  // The thread starts with the first call, std::system_error when it cannot. Lives to the very end of
  // the process and is never destroyed: nothing waits for the thread when the process ends.
  static ChildReaper& Instance();

  // Memory for one more child; std::bad_alloc when there is none.
  void MakeRoom();
  // Takes charge of a child that was just started; there is room for it.
  void Watch(pid_t child);
  // Children in its charge that have not ended.
  int LiveCount();

private:
  struct Child {
    pid_t Id;
    FileDescriptor Process;  // of pidfd_open; none when no descriptor was left for it
  };

  ChildReaper();
  [[noreturn]] void Run();
  static bool Collect(const Child& child);

  std::mutex mutex_;
  std::vector<Child> children_;
  FileDescriptor news_;  // readable when children were added
};

}  // namespace standin
