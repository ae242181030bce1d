#include <fcntl.h>
#include <spawn.h>
#include <windows.h>

#include <cerrno>
#include <exception>
#include <filesystem>
#include <string>
#include <system_error>
#include <vector>

#include "core/HostPath.h"
#include "text/NativeText.h"
#include "windows/ChildReaper.h"
#include "windows/CommandLine.h"
#include "windows/HandleTable.h"
#include "windows/LaunchReport.h"
#include "windows/SignalMask.h"
#include "windows/WindowsFaults.h"

namespace standin {
namespace {

constexpr int kStandardDescriptors = 3;

void Check(int error) {
  if (error != 0) throw std::system_error(error, std::generic_category());
}

// What posix_spawn needs for the child's start. It is posix_spawn and not fork because the cost of a
// fork grows with the memory of the host, which may hold a large model.
class ChildStart {
public:
  ChildStart() {
    Check(posix_spawn_file_actions_init(&actions_));
    if (const int error = posix_spawnattr_init(&attributes_)) {
      posix_spawn_file_actions_destroy(&actions_);
      Check(error);
    }
  }
  ChildStart(const ChildStart&) = delete;
  ChildStart& operator=(const ChildStart&) = delete;
  ~ChildStart() {
    posix_spawnattr_destroy(&attributes_);
    posix_spawn_file_actions_destroy(&actions_);
  }

  void SetFolder(const std::string& folder) {
    Check(posix_spawn_file_actions_addchdir_np(&actions_, folder.c_str()));
  }

  // Nothing of this handle reaches the child unless it is open and inheritable.
  void SetStandardDescriptor(int number, HANDLE handle, bool inherits) {
    auto object = HandleTable::Instance().Find(handle);
    if (!inherits || !object || !object->Inheritable || !object->Descriptor) {
      Check(posix_spawn_file_actions_addclose(&actions_, number));
      return;
    }
    int source = object->Descriptor.Get();
    if (source < kStandardDescriptors) {
      // A standard descriptor of the host may be overwritten in the child before its turn comes.
      FileDescriptor copy(fcntl(source, F_DUPFD_CLOEXEC, kStandardDescriptors));
      if (!copy) Check(errno);
      source = copy.Get();
      copies_.push_back(std::move(copy));
    }
    Check(posix_spawn_file_actions_adddup2(&actions_, source, number));
    held_.push_back(std::move(object));
  }

  pid_t Run(const std::string& program, const std::vector<std::string>& arguments) {
    Check(posix_spawn_file_actions_addclosefrom_np(&actions_, kStandardDescriptors));
    sigset_t none;
    sigemptyset(&none);
    const sigset_t brokenPipe = BrokenPipeSignal();
    Check(posix_spawnattr_setsigmask(&attributes_, &none));
    Check(posix_spawnattr_setsigdefault(&attributes_, &brokenPipe));
    Check(posix_spawnattr_setflags(&attributes_, POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF));

    std::vector<char*> pointers;
    pointers.reserve(arguments.size() + 1);
    for (const std::string& argument : arguments) pointers.push_back(const_cast<char*>(argument.c_str()));
    pointers.push_back(nullptr);
    pid_t child = 0;
    Check(posix_spawn(&child, program.c_str(), &actions_, &attributes_, pointers.data(), environ));
    return child;
  }

private:
  posix_spawn_file_actions_t actions_{};
  posix_spawnattr_t attributes_{};
  std::vector<FileDescriptor> copies_;
  std::vector<std::shared_ptr<KernelObject>> held_;  // open until the child has its own
};

std::string FileName(LPCWSTR hostPath) {
  return FilePath(NativeFromWide(hostPath)).string();
}

PROCESS_INFORMATION Start(LPCWSTR application, LPCWSTR commandLine, bool inherits, LPCWSTR folder,
                          const STARTUPINFOW& startup) {
  // The program is looked for from the host's folder, not from the child's.
  const std::string program = std::filesystem::absolute(FileName(application)).string();
  // Without a command line the program's name serves as one.
  const LPCWSTR line = commandLine && *commandLine ? commandLine : application;
  const std::vector<std::string> arguments = SplitCommandLine(NativeFromWide(line));

  ChildStart start;
  if (folder) start.SetFolder(FileName(folder));
  if (startup.dwFlags & STARTF_USESTDHANDLES) {
    start.SetStandardDescriptor(STDIN_FILENO, startup.hStdInput, inherits);
    start.SetStandardDescriptor(STDOUT_FILENO, startup.hStdOutput, inherits);
    start.SetStandardDescriptor(STDERR_FILENO, startup.hStdError, inherits);
  }

  // All that can fail comes before the child, which must not be left without a reaper.
  ChildReaper& reaper = ChildReaper::Instance();
  reaper.MakeRoom();
  NewHandle processHandle({}, false);
  NewHandle threadHandle({}, false);
  const pid_t child = start.Run(program, arguments);
  reaper.Watch(child);

  PROCESS_INFORMATION process{};
  process.hProcess = processHandle.Release();
  process.hThread = threadHandle.Release();
  process.dwProcessId = static_cast<DWORD>(child);
  process.dwThreadId = static_cast<DWORD>(child);
  return process;
}

}  // namespace
}  // namespace standin

BOOL CreateProcessW(LPCWSTR application, LPWSTR commandLine, LPSECURITY_ATTRIBUTES /*processAttributes*/,
                    LPSECURITY_ATTRIBUTES /*threadAttributes*/, BOOL inheritHandles, DWORD flags,
                    LPVOID environment, LPCWSTR folder, LPSTARTUPINFOW startup,
                    LPPROCESS_INFORMATION process) {
  const bool fails = standin::TakesFault(standin::WindowsCall::CreateProcess);
  const bool complete = application && *application && !environment && startup && process;
  bool started = false;
  if (complete && !fails) {
    try {
      *process = standin::Start(application, commandLine, inheritHandles != FALSE, folder, *startup);
      started = true;
    } catch (const std::exception&) {
      // No such program or folder, not a program, or out of memory or descriptors: no child was started.
    }
  }
  standin::ReportLaunch(application, commandLine, folder, flags, started);
  return started;
}
