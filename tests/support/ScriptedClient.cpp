#include "support/ScriptedClient.h"

#include <fstream>
#include <map>
#include <sstream>

#include "core/HostPath.h"
#include "support/Files.h"
#include "support/Platform.h"
#include "support/scripted_client/Escapes.h"

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kScriptName = "script";
constexpr std::string_view kLogName = "log";

fs::path BuiltClients() {
  return ExecutableFolder() / "scripted";
}

void Install(const fs::path& folder, const char* program) {
  std::error_code error;
  fs::create_hard_link(BuiltClients() / program, folder / program, error);
  if (error) fs::copy_file(BuiltClients() / program, folder / program);
}

std::vector<std::string> SplitAtBlanks(const std::string& line) {
  std::vector<std::string> words;
  std::size_t start = 0;
  for (std::size_t blank = line.find(' '); blank != std::string::npos; blank = line.find(' ', start)) {
    words.push_back(Unescape(line.substr(start, blank - start)));
    start = blank + 1;
  }
  words.push_back(Unescape(line.substr(start)));
  return words;
}

std::string EscapedPath(const fs::path& path) {
  return Escape(path.string());
}

}  // namespace

std::string ClientRun::Joined() const {
  std::string joined;
  for (const std::string& argument : Arguments) joined += (joined.empty() ? "" : " ") + argument;
  return joined;
}

ScriptedRule& ScriptedRule::Append(std::string_view line) {
  std::ofstream script(script_, std::ios::binary | std::ios::app);
  script << line << '\n';
  return *this;
}

ScriptedRule& ScriptedRule::Out(std::string_view text) {
  return Append("out " + Escape(text));
}
ScriptedRule& ScriptedRule::Error(std::string_view text) {
  return Append("err " + Escape(text));
}
ScriptedRule& ScriptedRule::Repeat(std::uint64_t count, std::string_view text) {
  return Append("repeat " + std::to_string(count) + " " + Escape(text));
}
ScriptedRule& ScriptedRule::File(const fs::path& path) {
  return Append("file " + EscapedPath(path));
}
ScriptedRule& ScriptedRule::Read() {
  return Append("read");
}
ScriptedRule& ScriptedRule::ReadAll() {
  return Append("readall");
}
ScriptedRule& ScriptedRule::MakeWritable(const fs::path& path) {
  return Append("writable " + EscapedPath(path));
}
ScriptedRule& ScriptedRule::MakeReadOnly(const fs::path& path) {
  return Append("readonly " + EscapedPath(path));
}
ScriptedRule& ScriptedRule::Store(const fs::path& path, std::string_view bytes) {
  return Append("store " + EscapedPath(path) + " " + Escape(bytes));
}
ScriptedRule& ScriptedRule::Remove(const fs::path& path) {
  return Append("remove " + EscapedPath(path));
}
ScriptedRule& ScriptedRule::CloseOutput() {
  return Append("closeout");
}
ScriptedRule& ScriptedRule::CloseInput() {
  return Append("closein");
}
ScriptedRule& ScriptedRule::Hang() {
  return Append("hang");
}
ScriptedRule& ScriptedRule::HangForever() {
  return Append("hangforever");
}
ScriptedRule& ScriptedRule::Exit(int status) {
  return Append("exit " + std::to_string(status));
}
ScriptedRule& ScriptedRule::Crash() {
  return Append("crash");
}
ScriptedRule& ScriptedRule::TellConsole() {
  return Append("console");
}
ScriptedRule& ScriptedRule::Once() {
  return Append("once");
}
ScriptedRule& ScriptedRule::Program(std::string_view name) {
  return Append("program " + Escape(name));
}

ScriptedClient::ScriptedClient(InstalledClients installed)
    : clients_(installed == InstalledClients::Both ? BuiltClients() : folder_ / "clients"),
      script_("ZRK_CLIENT_SCRIPT", (folder_ / kScriptName).string()),
      log_("ZRK_CLIENT_LOG", (folder_ / kLogName).string()) {
  std::string path = clients_.string();
  if (installed == InstalledClients::Both) {
    path += kPathListSeparator + GetEnvironmentValue("PATH").value_or("");
  } else {
    fs::create_directory(clients_);
    if (installed == InstalledClients::CVSOnly) Install(clients_, "cvs.exe");
    if (installed == InstalledClients::SVNOnly) Install(clients_, "svn.exe");
  }
  path_.emplace("PATH", path);
}

ScriptedRule ScriptedClient::When(std::string_view arguments) {
  ScriptedRule rule(folder_ / kScriptName);
  rule.Append("when " + Escape(arguments));
  return rule;
}

void ScriptedClient::ClearRules() {
  // Among them the marks of rules that are used up.
  for (const fs::directory_entry& entry : fs::directory_iterator(folder_.Path())) {
    if (entry.path().filename().string().starts_with(kScriptName)) fs::remove(entry.path());
  }
}

std::vector<ClientRun> ScriptedClient::Runs() const {
  std::vector<ClientRun> runs;
  if (!fs::exists(folder_ / kLogName)) return runs;
  std::istringstream log(ReadFile(folder_ / kLogName));
  // Place in `runs` of the last run with that process number.
  std::map<std::string, std::size_t> places;
  for (std::string line; std::getline(log, line);) {
    const std::vector<std::string> words = SplitAtBlanks(line);
    if (words.at(0) == "run") {
      places[words.at(1)] = runs.size();
      runs.push_back({words.at(2), words.at(3), {words.begin() + 4, words.end()}, ""});
    } else {
      runs.at(places.at(words.at(1))).Input += words.at(2);
    }
  }
  return runs;
}

void ScriptedClient::ClearRuns() {
  fs::remove(folder_ / kLogName);
}

std::string ScriptedClient::HostPath(std::string_view program) const {
  return standin::HostPath(clients_ / program);
}
