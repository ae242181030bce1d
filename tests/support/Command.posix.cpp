#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <optional>
#include <stdexcept>
#include <system_error>

#include "support/Command.h"
#include "support/Files.h"
#include "support/TemporaryFolder.h"

namespace {

class Pipe {
public:
  Pipe() {
    if (pipe2(ends_, O_CLOEXEC) != 0) throw std::system_error(errno, std::generic_category(), "pipe");
  }
  Pipe(const Pipe&) = delete;
  Pipe& operator=(const Pipe&) = delete;
  ~Pipe() {
    close(ends_[0]);
    CloseWriteEnd();
  }

  int ReadEnd() const { return ends_[0]; }
  int WriteEnd() const { return ends_[1]; }
  void CloseWriteEnd() {
    if (ends_[1] >= 0) close(ends_[1]);
    ends_[1] = -1;
  }

private:
  int ends_[2] = {-1, -1};
};

std::vector<std::string> EnvironmentWith(const std::map<std::string, std::string>& added) {
  std::vector<std::string> variables;
  for (char** variable = environ; *variable; ++variable) {
    const std::string text = *variable;
    if (!added.contains(text.substr(0, text.find('=')))) variables.push_back(text);
  }
  for (const auto& [name, value] : added) variables.emplace_back(name).append("=").append(value);
  return variables;
}

std::vector<char*> Pointers(std::vector<std::string>& texts) {
  std::vector<char*> pointers;
  pointers.reserve(texts.size() + 1);
  for (std::string& text : texts) pointers.push_back(text.data());
  pointers.push_back(nullptr);
  return pointers;
}

std::string ReadToEnd(int file) {
  std::string bytes;
  std::array<char, 65536> buffer{};
  for (;;) {
    const ssize_t size = read(file, buffer.data(), buffer.size());
    if (size < 0 && errno == EINTR) continue;
    if (size <= 0) return bytes;
    bytes.append(buffer.data(), static_cast<std::size_t>(size));
  }
}

int WaitForEnd(pid_t process) {
  int status = 0;
  while (waitpid(process, &status, 0) < 0) {
    if (errno != EINTR) throw std::system_error(errno, std::generic_category(), "waitpid");
  }
  return WIFSIGNALED(status) ? 128 + WTERMSIG(status) : WEXITSTATUS(status);
}

std::string Joined(const std::vector<std::string>& arguments) {
  std::string joined;
  for (const std::string& argument : arguments) joined += (joined.empty() ? "" : " ") + argument;
  return joined;
}

}  // namespace

CommandResult RunCommand(const std::vector<std::string>& arguments, const CommandOptions& options) {
  std::vector<std::string> texts = arguments;
  std::vector<std::string> environment = EnvironmentWith(options.Environment);

  // Input comes from a file, so that it needs no second thread however long it is.
  std::optional<TemporaryFolder> inputFolder;
  std::string input = "/dev/null";
  if (!options.Input.empty()) {
    input = (inputFolder.emplace() / "input").string();
    WriteFile(input, options.Input);
  }

  Pipe output;
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, input.c_str(), O_RDONLY, 0);
  posix_spawn_file_actions_adddup2(&actions, output.WriteEnd(), STDOUT_FILENO);
  posix_spawn_file_actions_adddup2(&actions, output.WriteEnd(), STDERR_FILENO);
  if (!options.Folder.empty()) posix_spawn_file_actions_addchdir_np(&actions, options.Folder.c_str());
  pid_t process = 0;
  const int error = posix_spawnp(&process, texts.at(0).c_str(), &actions, nullptr, Pointers(texts).data(),
                                 Pointers(environment).data());
  posix_spawn_file_actions_destroy(&actions);
  if (error != 0) throw std::system_error(error, std::generic_category(), Joined(arguments));

  output.CloseWriteEnd();
  CommandResult result;
  result.Output = ReadToEnd(output.ReadEnd());
  result.Status = WaitForEnd(process);
  return result;
}

std::string RunCommandOrThrow(const std::vector<std::string>& arguments, const CommandOptions& options) {
  const CommandResult result = RunCommand(arguments, options);
  if (result.Status != 0) throw std::runtime_error(Joined(arguments) + ":\n" + result.Output);
  return result.Output;
}
