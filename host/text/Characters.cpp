#include "text/Characters.h"

#include <windows.h>

namespace standin {

std::size_t CharacterBytes(std::string_view text) {
  return text.size() > 1 && IsDBCSLeadByte(static_cast<BYTE>(text.front())) ? 2 : 1;
}

std::size_t FindByCharacters(std::string_view text, std::string_view searched) {
  std::size_t position = 0;
  for (std::size_t next = text.find(searched); next != std::string_view::npos;
       next = text.find(searched, position)) {
    while (position < next) position += CharacterBytes(text.substr(position));
    if (position == next) return next;
  }
  return std::string_view::npos;
}

std::size_t FindLastByCharacters(std::string_view text, char searched) {
  std::size_t last = std::string_view::npos;
  for (std::size_t position = 0; position < text.size(); position += CharacterBytes(text.substr(position))) {
    if (text[position] == searched) last = position;
  }
  return last;
}

void ReplaceByCharacters(std::string& text, char searched, char replacement) {
  for (std::size_t position = 0; position < text.size();
       position += CharacterBytes(std::string_view(text).substr(position))) {
    if (text[position] == searched) text[position] = replacement;
  }
}

}  // namespace standin
