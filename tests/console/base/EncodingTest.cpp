#include "base/Encoding.h"

#include <gtest/gtest.h>

namespace {

using zrkhost::CharactersFromUtf8;
using zrkhost::Utf8FromCharacters;
using zrkhost::Utf8FromWide;

TEST(Encoding, WritesWideTextAsUtf8) {
  EXPECT_EQ(Utf8FromWide(L"a\u00fc\u9580"), "a\u00fc\u9580");
  EXPECT_EQ(Utf8FromWide(L"\U0001F600"), "\U0001F600");
  EXPECT_EQ(Utf8FromWide(L""), "");
}

TEST(Encoding, JoinsSurrogatePairs) {
  const std::wstring pair = {static_cast<wchar_t>(0xD83D), static_cast<wchar_t>(0xDE00)};
  EXPECT_EQ(Utf8FromWide(pair), "\U0001F600");
}

TEST(Encoding, ReplacesWhatIsNoCharacter) {
  EXPECT_EQ(Utf8FromWide(std::wstring{static_cast<wchar_t>(0xD83D)}), "\uFFFD");
  EXPECT_EQ(Utf8FromWide(std::wstring{static_cast<wchar_t>(0xDC80), L'a'}), "\uFFFDa");
  EXPECT_EQ(Utf8FromWide(std::wstring{static_cast<wchar_t>(0xD83D), L'a'}), "\uFFFDa");
}

TEST(Encoding, TakesUtf8ApartAndPutsItTogether) {
  const std::u32string characters = {U'a', 0xFC, 0x9580, 0x1F600};
  EXPECT_EQ(CharactersFromUtf8("a\u00fc\u9580\U0001F600"), characters);
  EXPECT_EQ(Utf8FromCharacters(characters), "a\u00fc\u9580\U0001F600");
}

TEST(Encoding, KeepsBytesThatAreNoCharacterApart) {
  // Not a lead, too short, over-long, a surrogate, beyond the last character.
  EXPECT_EQ(CharactersFromUtf8("\xffz"), (std::u32string{0xDCFF, U'z'}));
  EXPECT_EQ(CharactersFromUtf8("\xe9\x96"), (std::u32string{0xDCE9, 0xDC96}));
  EXPECT_EQ(CharactersFromUtf8("\xc0\x9b"), (std::u32string{0xDCC0, 0xDC9B}));
  EXPECT_EQ(CharactersFromUtf8("\xed\xa0\x80"), (std::u32string{0xDCED, 0xDCA0, 0xDC80}));
  EXPECT_EQ(CharactersFromUtf8("\xf4\x90\x80\x80"), (std::u32string{0xDCF4, 0xDC90, 0xDC80, 0xDC80}));
}

TEST(Encoding, KeepsPathsThroughUtf8) {
  EXPECT_EQ(zrkhost::Utf8FromPath(zrkhost::PathFromUtf8("sub/T\u00fcr \u9580")), "sub/T\u00fcr \u9580");
}

TEST(Encoding, KeepsAsciiOfTheNativeEncoding) {
  EXPECT_EQ(zrkhost::Utf8FromNative("car"), "car");
}

}  // namespace
