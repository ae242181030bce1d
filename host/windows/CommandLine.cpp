#include "windows/CommandLine.h"

#include <algorithm>

#include "text/Characters.h"

namespace standin {
namespace {

constexpr std::string_view kSeparators = " \t";

bool IsSeparator(char character) {
  return kSeparators.find(character) != std::string_view::npos;
}

std::string TakeProgramName(std::string_view& line) {
  std::string name;
  bool quoted = false;
  std::size_t end = 0;
  for (; end < line.size() && (quoted || !IsSeparator(line[end])); ++end) {
    if (line[end] == '"') {
      quoted = !quoted;
    } else {
      name += line[end];
    }
  }
  line.remove_prefix(end);
  return name;
}

// `line` starts with the argument.
std::string TakeArgument(std::string_view& line) {
  std::string argument;
  bool quoted = false;
  while (!line.empty() && (quoted || !IsSeparator(line.front()))) {
    const std::size_t backslashes = std::min(line.find_first_not_of('\\'), line.size());
    const bool beforeQuote = backslashes < line.size() && line[backslashes] == '"';
    argument.append(beforeQuote ? backslashes / 2 : backslashes, '\\');
    line.remove_prefix(backslashes);
    if (beforeQuote) {
      const bool doubled = quoted && line.substr(0, 2) == "\"\"";
      if (backslashes % 2 == 1) {
        argument += '"';
      } else if (doubled) {
        argument += '"';
        line.remove_prefix(1);
      } else {
        quoted = !quoted;
      }
      line.remove_prefix(1);
    } else if (backslashes == 0) {
      const std::size_t bytes = CharacterBytes(line);
      argument.append(line.substr(0, bytes));
      line.remove_prefix(bytes);
    }
  }
  return argument;
}

}  // namespace

std::vector<std::string> SplitCommandLine(std::string_view line) {
  std::vector<std::string> arguments{TakeProgramName(line)};
  for (;;) {
    line.remove_prefix(std::min(line.find_first_not_of(kSeparators), line.size()));
    if (line.empty()) return arguments;
    arguments.push_back(TakeArgument(line));
  }
}

}  // namespace standin
