#include "User.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <fstream>
#include <sstream>
#include <stdexcept>

#include <poll.h>
#include <sys/syscall.h>
#include <unistd.h>

#include "core/HostPath.h"
#include "support/Files.h"
#include "support/Platform.h"

namespace fs = std::filesystem;

namespace {

constexpr std::chrono::seconds kPatience{30};

class ProcessHandle {
public:
  explicit ProcessHandle(pid_t process) : number_(static_cast<int>(syscall(SYS_pidfd_open, process, 0))) {}
  ProcessHandle(const ProcessHandle&) = delete;
  ProcessHandle& operator=(const ProcessHandle&) = delete;
  ~ProcessHandle() {
    if (number_ >= 0) close(number_);
  }

  // True as well when there is no such process.
  bool WaitForEnd() const {
    if (number_ < 0) return true;
    pollfd event = {.fd = number_, .events = POLLIN, .revents = 0};
    return poll(&event, 1, static_cast<int>(std::chrono::milliseconds(kPatience).count())) == 1;
  }

private:
  int number_;
};

// Empty when the process has gone or belongs to somebody else.
std::string EnvironmentOf(const fs::path& process) {
  std::ifstream file(process / "environ", std::ios::binary);
  std::ostringstream text;
  text << file.rdbuf();
  return '\0' + text.str();
}

}  // namespace

std::vector<Json> EventsOf(const Json& command, const std::string& kind) {
  std::vector<Json> events;
  for (const Json& event : command.at("events")) {
    if (event.at("event") == kind) events.push_back(event);
  }
  return events;
}

std::vector<std::string> TextsOf(const std::vector<Json>& events, const std::string& member) {
  std::vector<std::string> texts;
  for (const Json& event : events) texts.push_back(event.at(member));
  return texts;
}

User::User(std::string name, const fs::path& home)
    : name_(std::move(name)),
      home_(home),
      environment_{{"HOME", home.string()}, {"LOGNAME", name_}, {"USER", name_}} {
  fs::create_directories(home);
}

Json User::Host(const std::vector<std::string>& arguments, int status) const {
  const fs::path report = home_ / "report.json";
  std::vector<std::string> command = starter_;
  command.insert(command.end(), {(ExecutableFolder() / "zrkhost").string(), "--report", report.string()});
  command.insert(command.end(), arguments.begin(), arguments.end());
  const CommandResult result = RunCommand(command, {.Folder = {}, .Input = "", .Environment = environment_});
  EXPECT_EQ(result.Status, status) << result.Output;
  return Json::parse(ReadFile(report));
}

Json User::HostOn(const std::filesystem::path& folder, const std::vector<std::string>& commands,
                  int status) const {
  std::vector<std::string> arguments = {"--folder", folder.string()};
  for (const std::string& command : commands) arguments.insert(arguments.end(), {"-c", command});
  return Host(arguments, status);
}

CommandResult User::Adapter(const std::string& program, const std::vector<std::string>& arguments) const {
  std::vector<std::string> command = {(ExecutableFolder() / "clients" / program).string()};
  command.insert(command.end(), arguments.begin(), arguments.end());
  return RunCommand(command, {.Folder = {}, .Input = "", .Environment = environment_});
}

void User::SignOn(const std::string& fileURL) const {
  // The client keeps the name under which it has once changed something in a repository. Without a UTF-8
  // character type it refuses names outside ASCII.
  CommandOptions options = {.Folder = {}, .Input = "", .Environment = environment_};
  options.Environment["LC_ALL"] = "C.UTF-8";
  RunCommandOrThrow({"svn", "--non-interactive", "--username", name_, "lock", fileURL}, options);
  RunCommandOrThrow({"svn", "--non-interactive", "unlock", fileURL}, options);
}

void User::ObeyFileModes() {
  if (geteuid() != 0) return;
  const std::string without = "-dac_override,-dac_read_search";
  starter_ = {"setpriv", "--bounding-set", without, "--inh-caps", without};
}

bool User::WaitUntilNoProcessIsLeft() const {
  const std::string mark = std::string(1, '\0') + "HOME=" + home_.string() + '\0';
  // Again after every find: it may have started another.
  for (bool found = true; found;) {
    found = false;
    for (const fs::directory_entry& entry : fs::directory_iterator("/proc")) {
      const std::string name = entry.path().filename();
      if (!std::all_of(name.begin(), name.end(), [](char c) { return c >= '0' && c <= '9'; })) continue;
      if (EnvironmentOf(entry.path()).find(mark) == std::string::npos) continue;
      if (!ProcessHandle(std::stoi(name)).WaitForEnd()) return false;
      found = true;
    }
  }
  return true;
}

std::map<std::string, Json> AttributesByFile(const Json& report, const fs::path& folder) {
  const std::string prefix = standin::HostPath(folder) + "\\";
  std::map<std::string, Json> attributes;
  for (const Json& product : report.at("products")) {
    if (product.at("document").is_null()) continue;
    std::string file = product.at("document");
    if (!file.starts_with(prefix)) throw std::runtime_error(file + " is not in " + prefix);
    file.erase(0, prefix.size());
    std::replace(file.begin(), file.end(), '\\', '/');
    attributes[file] = product.at("attributes");
  }
  return attributes;
}
