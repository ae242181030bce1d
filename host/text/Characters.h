#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// Text in the platform's 8-bit encoding taken by characters. In some code pages a letter has two bytes, and
// the second may be that of an ASCII character.
namespace standin {

// Bytes of the first character; not for an empty text. Every part of a UTF-8 character counts as one.
std::size_t CharacterBytes(std::string_view text);

// Position in bytes of the first occurrence that starts with a character; npos when there is none.
std::size_t FindByCharacters(std::string_view text, std::string_view searched);

// Position of the last character that is `searched`, an ASCII character; npos when there is none.
std::size_t FindLastByCharacters(std::string_view text, char searched);

// Every character that is `searched`, an ASCII character, becomes `replacement`.
void ReplaceByCharacters(std::string& text, char searched, char replacement);

}  // namespace standin
