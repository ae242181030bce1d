#pragma once

#include <filesystem>
#include <string>
#include <string_view>

// Between UTF-8, in which session files and reports are written, and the platform's own texts: wide, and
// 8-bit in the native encoding (UTF-8 on Linux, the active code page on Windows).
namespace zrkhost {

// What stands for something that is no character.
inline constexpr char32_t kReplacementCharacter = 0xFFFD;

// Always well-formed: what is no character becomes U+FFFD.
std::string Utf8FromWide(std::wstring_view text);
std::string Utf8FromNative(std::string_view text);

// The characters of a UTF-8 text in order. A byte B that is no part of one becomes U+DC00 + B, which no
// well-formed text holds.
std::u32string CharactersFromUtf8(std::string_view text);
// The way back; only for characters that are some.
std::string Utf8FromCharacters(std::u32string_view characters);

std::filesystem::path PathFromNative(const std::string& text);
std::filesystem::path PathFromUtf8(std::string_view text);
// For people to read, and for names that are made from paths.
std::string Utf8FromPath(const std::filesystem::path& path);

}  // namespace zrkhost
