#include "InstalledClient.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <optional>

namespace {

class FileDescriptor {
public:
  FileDescriptor() = default;
  FileDescriptor(const FileDescriptor&) = delete;
  FileDescriptor& operator=(const FileDescriptor&) = delete;
  ~FileDescriptor() { Close(); }

  void Close() {
    if (Number >= 0) close(Number);
    Number = -1;
  }

  int Number = -1;
};

class SpawnActions {
public:
  SpawnActions() { posix_spawn_file_actions_init(&Actions); }
  SpawnActions(const SpawnActions&) = delete;
  SpawnActions& operator=(const SpawnActions&) = delete;
  ~SpawnActions() { posix_spawn_file_actions_destroy(&Actions); }

  posix_spawn_file_actions_t Actions{};
};

bool IsThisProgram(const struct stat& file) {
  struct stat self = {};
  return stat("/proc/self/exe", &self) == 0 && self.st_dev == file.st_dev && self.st_ino == file.st_ino;
}

// Empty when there is none.
std::string FindAlongPath(const std::string& program) {
  const char* variable = std::getenv("PATH");
  std::string_view folders = variable ? variable : "";
  while (!folders.empty()) {
    const std::size_t colon = folders.find(':');
    const std::string_view folder = folders.substr(0, colon);
    folders.remove_prefix(colon == std::string_view::npos ? folders.size() : colon + 1);
    if (folder.empty()) continue;
    std::string path = std::string(folder) + "/" + program;
    struct stat file = {};
    if (stat(path.c_str(), &file) == 0 && S_ISREG(file.st_mode) && access(path.c_str(), X_OK) == 0 &&
        !IsThisProgram(file)) {
      return path;
    }
  }
  return {};
}

// The readers of the reports know the English words, and without a UTF-8 character type a name outside
// ASCII ends a report. LANGUAGE outranks the locale of messages.
void SetMessageLanguage() {
  setenv("LC_ALL", "C.UTF-8", 1);
  unsetenv("LANGUAGE");
}

// Until the client has closed its end, or nobody wants more.
void ForwardOutput(int from, const OutputSink& output) {
  std::array<char, 65536> buffer{};
  for (;;) {
    const ssize_t size = read(from, buffer.data(), buffer.size());
    if (size < 0 && errno == EINTR) continue;
    if (size <= 0) return;
    if (!output({buffer.data(), static_cast<std::size_t>(size)})) return;
  }
}

int WaitForEnd(pid_t process) {
  int status = 0;
  while (waitpid(process, &status, 0) < 0) {
    if (errno != EINTR) return EXIT_FAILURE;
  }
  return WIFSIGNALED(status) ? 128 + WTERMSIG(status) : WEXITSTATUS(status);
}

constexpr int kClientNotFound = 127;
constexpr int kClientNotStarted = 126;

int ReportFailure(const InstalledClient& client, const char* what, int error) {
  std::fprintf(stderr, "%s: %s: %s\n", client.AdapterName.c_str(), what, std::strerror(error));
  return kClientNotStarted;
}

// Nothing, after a message, when there is none.
std::optional<std::string> FindClient(const InstalledClient& client) {
  std::string program = FindAlongPath(client.Program);
  if (!program.empty()) return program;
  std::fprintf(stderr, "%s: the program \"%s\" is not on the PATH; install it (Debian: apt-get install %s)\n",
               client.AdapterName.c_str(), client.Program.c_str(), client.Package.c_str());
  return std::nullopt;
}

// The program and its arguments as the system takes them: with a null pointer behind the last.
class CommandLine {
public:
  CommandLine(const std::string& program, const std::vector<std::string>& arguments) : texts_{program} {
    texts_.insert(texts_.end(), arguments.begin(), arguments.end());
    for (std::string& text : texts_) pointers_.push_back(text.data());
    pointers_.push_back(nullptr);
  }
  CommandLine(const CommandLine&) = delete;
  CommandLine& operator=(const CommandLine&) = delete;

  char** Get() { return pointers_.data(); }

private:
  std::vector<std::string> texts_;
  std::vector<char*> pointers_;
};

}  // namespace

int RunInstalledClient(const InstalledClient& client, const std::vector<std::string>& arguments,
                       const OutputSink& output) {
  const std::optional<std::string> program = FindClient(client);
  if (!program) return kClientNotFound;
  SetMessageLanguage();

  FileDescriptor readEnd;
  FileDescriptor writeEnd;
  int ends[2];
  if (pipe2(ends, O_CLOEXEC) != 0) return ReportFailure(client, "no pipe for the client's output", errno);
  readEnd.Number = ends[0];
  writeEnd.Number = ends[1];

  CommandLine commandLine(*program, arguments);
  SpawnActions spawn;
  posix_spawn_file_actions_adddup2(&spawn.Actions, writeEnd.Number, STDOUT_FILENO);
  posix_spawn_file_actions_adddup2(&spawn.Actions, writeEnd.Number, STDERR_FILENO);
  pid_t process = 0;
  const int error =
      posix_spawn(&process, program->c_str(), &spawn.Actions, nullptr, commandLine.Get(), environ);
  if (error != 0) return ReportFailure(client, program->c_str(), error);

  writeEnd.Close();
  ForwardOutput(readEnd.Number, output);
  // A client that still writes must not wait for a reader that has gone.
  readEnd.Close();
  return WaitForEnd(process);
}

int BecomeInstalledClient(const InstalledClient& client, const std::vector<std::string>& arguments) {
  const std::optional<std::string> program = FindClient(client);
  if (!program) return kClientNotFound;
  SetMessageLanguage();
  execv(program->c_str(), CommandLine(*program, arguments).Get());
  return ReportFailure(client, program->c_str(), errno);
}

bool WriteToStandardOutput(std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = write(STDOUT_FILENO, bytes.data(), bytes.size());
    if (written < 0 && errno == EINTR) continue;
    if (written <= 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  return true;
}
