#include "Script.h"

#include "Escapes.h"

std::vector<Rule> ParseScript(std::string_view script) {
  std::vector<Rule> rules;
  while (!script.empty()) {
    const std::size_t lineEnd = script.find('\n');
    const std::string_view line = script.substr(0, lineEnd);
    script.remove_prefix(lineEnd == std::string_view::npos ? script.size() : lineEnd + 1);
    if (line.empty() || line.front() == '#') continue;

    const std::size_t blank = line.find(' ');
    const std::string_view verb = line.substr(0, blank);
    const std::string_view text = blank == std::string_view::npos ? "" : line.substr(blank + 1);
    if (verb == "when") {
      rules.emplace_back().Arguments = Unescape(text);
    } else if (rules.empty()) {
      continue;
    } else if (verb == "program") {
      rules.back().Program = text;
    } else if (verb == "once") {
      rules.back().Once = true;
    } else {
      rules.back().Actions.push_back({std::string(verb), std::string(text)});
    }
  }
  return rules;
}
