#include "page/PageText.h"

#include <stdexcept>

#include "base/Encoding.h"

namespace zrkhost {

namespace {

bool IsNoCharacterOfHtml(char32_t character) {
  const bool control = character >= 0x7F && character < 0xA0;
  const bool surrogate = character >= 0xD800 && character < 0xE000;
  return control || surrogate || (character >= 0xFDD0 && character <= 0xFDEF) ||
         (character & 0xFFFE) == 0xFFFE;
}

char32_t Shown(char32_t character) {
  if (character == '\n' || character == '\t') return character;
  if (character < 0x20) return 0x2400 + character;
  if (character == 0x7F) return 0x2421;
  return IsNoCharacterOfHtml(character) ? kReplacementCharacter : character;
}

// Null when the character stands for itself.
const char32_t* ReferenceFor(char32_t character) {
  switch (character) {
    case '&':
      return U"&amp;";
    case '<':
      return U"&lt;";
    case '>':
      return U"&gt;";
    case '"':
      return U"&quot;";
    default:
      return nullptr;
  }
}

}  // namespace

std::string HtmlText(std::string_view text) {
  const std::u32string characters = CharactersFromUtf8(text);
  std::u32string html;
  html.reserve(characters.size());
  for (std::size_t i = 0; i < characters.size(); ++i) {
    const char32_t character = characters[i];
    if (character == '\r' && i + 1 < characters.size() && characters[i + 1] == '\n') continue;
    if (const char32_t* reference = ReferenceFor(character)) {
      html += reference;
    } else {
      html += Shown(character);
    }
  }
  return Utf8FromCharacters(html);
}

std::string JsonForScript(std::string_view json) {
  // All of these stand in JSON within strings only.
  std::string escaped;
  escaped.reserve(json.size());
  for (std::size_t i = 0; i < json.size(); ++i) {
    const std::string_view rest = json.substr(i);
    if (json[i] == '<') {
      escaped += "\\u003c";
    } else if (json[i] == '>') {
      escaped += "\\u003e";
    } else if (json[i] == '&') {
      escaped += "\\u0026";
    } else if (rest.starts_with("\u2028") || rest.starts_with("\u2029")) {
      escaped += rest.starts_with("\u2028") ? "\\u2028" : "\\u2029";
      i += 2;
    } else {
      escaped += json[i];
    }
  }
  return escaped;
}

std::string FillPage(std::string_view page, const std::map<std::string, std::string>& parts) {
  constexpr std::string_view kOpen = "<!--[";
  constexpr std::string_view kClose = "]-->";
  std::string filled;
  while (true) {
    const std::size_t mark = page.find(kOpen);
    filled += page.substr(0, mark);
    if (mark == std::string_view::npos) return filled;
    page.remove_prefix(mark + kOpen.size());
    const std::string name(page.substr(0, page.find(kClose)));
    const std::string end = std::string(kOpen) + "/" + name + std::string(kClose);
    const auto part = parts.find(name);
    const std::size_t behind = page.find(end);
    if (part == parts.end() || behind == std::string_view::npos)
      throw std::logic_error("the page's part " + name);
    filled += part->second;
    page.remove_prefix(behind + end.size());
  }
}

}  // namespace zrkhost
