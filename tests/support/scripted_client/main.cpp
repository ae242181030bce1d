#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "Platform.h"
#include "Player.h"
#include "RunLog.h"
#include "Script.h"

// A client that plays the script ZRK_CLIENT_SCRIPT names and logs its runs to the file ZRK_CLIENT_LOG names.

namespace {

std::string Variable(const char* name) {
  const char* value = std::getenv(name);
  return value ? value : "";
}

std::string ReadFile(const std::string& path) {
  std::string bytes;
  if (std::FILE* file = std::fopen(path.c_str(), "rb")) {
    char buffer[8192];
    while (const std::size_t size = std::fread(buffer, 1, sizeof buffer, file)) bytes.append(buffer, size);
    std::fclose(file);
  }
  return bytes;
}

std::string Joined(const std::vector<std::string>& arguments) {
  std::string joined;
  for (const std::string& argument : arguments) joined += (joined.empty() ? "" : " ") + argument;
  return joined;
}

bool IsUsedUp(const Rule& rule, std::size_t number, const std::string& scriptPath) {
  return rule.Once && !CreateNewFile(scriptPath + ".used." + std::to_string(number));
}

}  // namespace

int main(int argc, char** argv) {
  SetBinaryStandardStreams();
  const std::vector<std::string> arguments(argv + (argc > 0 ? 1 : 0), argv + argc);
  RunLog log(Variable("ZRK_CLIENT_LOG"), ProcessId());
  log.Started(CLIENT_NAME, CurrentFolder(), arguments);

  const std::string scriptPath = Variable("ZRK_CLIENT_SCRIPT");
  if (scriptPath.empty()) return EXIT_SUCCESS;
  const std::vector<Rule> rules = ParseScript(ReadFile(scriptPath));
  const std::string joined = Joined(arguments);
  for (std::size_t number = 0; number < rules.size(); ++number) {
    const Rule& rule = rules[number];
    if (!rule.Program.empty() && rule.Program != CLIENT_NAME) continue;
    if (joined.find(rule.Arguments) == std::string::npos) continue;
    if (!IsUsedUp(rule, number, scriptPath)) return Play(rule, log);
  }
  return EXIT_SUCCESS;
}
