#include "commands/CommandCompletion.h"

#include <algorithm>
#include <optional>

#include "base/Encoding.h"
#include "commands/CommandTable.h"
#include "commands/CommandText.h"

namespace zrkhost {

namespace {

// A line that is being typed: its words before the last one, and the last one, which may be empty.
struct Typing {
  std::vector<Word> Before;
  std::size_t From = 0;
  Word Last;
};

// Reads the quoted word at `position` and stands behind it then. True: its closing quote is there.
bool ReadQuoted(std::string_view line, std::size_t& position, std::string& text) {
  while (++position < line.size()) {
    if (line[position] == '"' && !line.substr(position + 1).starts_with('"')) {
      ++position;
      return true;
    }
    if (line[position] == '"') ++position;
    text += line[position];
  }
  return false;
}

// Absent where nothing can be completed: in a comment, or behind a quote that is misplaced.
std::optional<Typing> ReadTyping(std::string_view line) {
  constexpr std::string_view kBlanks = " \t";
  Typing typing;
  for (std::size_t position = 0;;) {
    position = std::min(line.find_first_not_of(kBlanks, position), line.size());
    typing.From = position;
    typing.Last = {};
    if (position == line.size()) return typing;
    if (line[position] == '#') return std::nullopt;
    typing.Last.Quoted = line[position] == '"';
    if (typing.Last.Quoted) {
      const bool closed = ReadQuoted(line, position, typing.Last.Text);
      if (!closed || position == line.size()) return typing;
      if (kBlanks.find(line[position]) == std::string_view::npos) return std::nullopt;
    } else {
      const auto end = std::min(line.find_first_of(kBlanks, position), line.size());
      typing.Last.Text = line.substr(position, end - position);
      position = end;
      if (position == line.size()) return typing;
    }
    typing.Before.push_back(typing.Last);
  }
}

// The longest text that all begin with; it does not end within a character.
std::string CommonBeginning(const std::vector<std::string>& texts) {
  auto common = CharactersFromUtf8(texts.front());
  for (const auto& text : texts) {
    const auto characters = CharactersFromUtf8(text);
    const auto [end, other] =
        std::mismatch(common.begin(), common.end(), characters.begin(), characters.end());
    common.erase(end, common.end());
  }
  return Utf8FromCharacters(common);
}

// The shallowest paths that begin with what was typed. Of a path that was typed whole, those one level below
// it.
std::vector<std::string> PathsFrom(const std::string& typed, const HostSession& session) {
  const auto& places = session.Places();
  std::vector<std::string> paths;
  std::vector<std::string> open;
  for (std::size_t i = 0; i < places.size();) {
    const Place& place = places[i];
    open.resize(place.Depth);
    const auto path = (open.empty() ? "" : open.back() + "/") + place.Name;
    const bool isLeaf = place.End == i + 1;
    const bool goesOn = !isLeaf && (typed + "/").starts_with(path + "/");
    if (!goesOn && path.starts_with(typed)) paths.push_back(path);
    if (goesOn) open.push_back(path);
    i = goesOn ? i + 1 : place.End;
  }
  return paths;
}

bool NeedsQuotes(const std::string& text) {
  return text.find_first_of(" \t") != std::string::npos || text.starts_with('"') || text.starts_with('#') ||
         text.starts_with("--");
}

// `closed`: the word is at its end.
std::string Quoted(const std::string& text, bool closed) {
  std::string quoted = "\"";
  for (const char character : text) quoted += character == '"' ? "\"\"" : std::string(1, character);
  return closed ? quoted + "\"" : quoted;
}

Completion CompletePath(const Typing& typing, const HostSession& session) {
  Completion completion{typing.From, "", PathsFrom(typing.Last.Text, session)};
  const auto& choices = completion.Choices;
  if (choices.empty()) return completion;
  const auto text = CommonBeginning(choices);
  const bool quotes = typing.Last.Quoted || NeedsQuotes(text);
  completion.Word = quotes ? Quoted(text, choices.size() == 1) : text;
  return completion;
}

Completion CompleteName(const Typing& typing, const std::vector<std::string>& names) {
  Completion completion{typing.From, "", {}};
  for (const auto& name : names) {
    if (name.starts_with(typing.Last.Text)) completion.Choices.push_back(name);
  }
  if (completion.Choices.empty()) return completion;
  completion.Word = CommonBeginning(completion.Choices);
  if (completion.Choices.size() == 1) completion.Word += ' ';
  return completion;
}

}  // namespace

Completion CompleteCommand(std::string_view line, const HostSession& session) {
  const auto typing = ReadTyping(line);
  if (!typing) return {};
  std::vector<std::string> names;
  if (typing->Before.empty()) {
    for (const CommandKind& kind : AllCommands()) names.emplace_back(kind.Name);
    return typing->Last.Quoted ? Completion{} : CompleteName(*typing, names);
  }
  const CommandKind* kind = FindCommand(typing->Before.front().Text);
  if (!kind) return {};
  const auto isGiven = [&](const char* option) {
    return std::find(typing->Before.begin(), typing->Before.end(), Word{option, false}) !=
           typing->Before.end();
  };
  if (!typing->Last.Quoted && typing->Last.Text.starts_with("-")) {
    for (const CommandOption& option : kind->Options) {
      if (!isGiven(option.Name)) names.emplace_back(option.Name);
    }
    return CompleteName(*typing, names);
  }
  const bool hasArgument =
      std::any_of(typing->Before.begin() + 1, typing->Before.end(),
                  [](const Word& word) { return word.Quoted || !word.Text.starts_with("--"); });
  return kind->Arguments == Takes::Product && !hasArgument ? CompletePath(*typing, session) : Completion{};
}

}  // namespace zrkhost
