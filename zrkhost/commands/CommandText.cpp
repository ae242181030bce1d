#include "commands/CommandText.h"

#include "base/CallError.h"

namespace zrkhost {

namespace {

bool IsBlank(char character) {
  return character == ' ' || character == '\t';
}

// Reads a quoted word; `position` stands behind the opening quote and is left behind the closing one.
std::string ReadQuoted(std::string_view line, std::size_t& position) {
  std::string text;
  for (;;) {
    const auto quote = line.find('"', position);
    if (quote == std::string_view::npos) throw CallError("a double quote is not closed");
    text += line.substr(position, quote - position);
    position = quote + 1;
    if (!line.substr(position).starts_with('"')) return text;
    text += '"';
    ++position;
  }
}

}  // namespace

std::vector<Word> SplitCommand(std::string_view line) {
  if (line.find('\0') != std::string_view::npos) throw CallError("the line holds the character 0");
  std::vector<Word> words;
  std::size_t position = 0;
  for (;;) {
    while (position < line.size() && IsBlank(line[position])) ++position;
    if (position == line.size() || line[position] == '#') return words;
    if (line[position] == '"') {
      words.push_back({ReadQuoted(line, ++position), true});
      if (position < line.size() && !IsBlank(line[position])) {
        throw CallError("a blank must follow a closing double quote");
      }
    } else {
      const auto end = line.find_first_of(" \t", position);
      words.push_back({std::string(line.substr(position, end - position)), false});
      position = end == std::string_view::npos ? line.size() : end;
    }
  }
}

std::vector<std::string> SplitLines(std::string_view text) {
  if (text.starts_with("\xEF\xBB\xBF")) text.remove_prefix(3);
  std::vector<std::string> lines;
  while (!text.empty()) {
    const auto end = text.find('\n');
    auto line = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    if (line.ends_with('\r')) line.remove_suffix(1);
    lines.emplace_back(line);
  }
  return lines;
}

}  // namespace zrkhost
