#include "CATUnicodeString.h"
#include "support/Platform.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace {

// Where the 8-bit encoding is UTF-8; on Windows it is what the system is set to.

std::string Bytes(const CATUnicodeString& text) {
  return text.ConvertToChar();
}

TEST(CATUnicodeString, IsEmptyAtFirst) {
  const CATUnicodeString text;
  EXPECT_EQ(Bytes(text), "");
  EXPECT_EQ(text.GetLengthInChar(), 0);
  EXPECT_EQ(text.GetLengthInByte(), 0);
}

TEST(CATUnicodeString, TakesANullPointerForTheEmptyText) {
  const char* const null = nullptr;
  const wchar_t* const wideNull = nullptr;
  CATUnicodeString text("a");
  text += null;
  EXPECT_EQ(Bytes(text), "a");
  text = null;
  EXPECT_EQ(Bytes(text), "");
  EXPECT_EQ(Bytes(CATUnicodeString(null)), "");
  EXPECT_EQ(Bytes(CATUnicodeString(wideNull)), "");
}

TEST(CATUnicodeString, KeepsEveryByteAsItCameIn) {
  std::string bytes;
  for (int byte = 1; byte < 256; ++byte) bytes.push_back(static_cast<char>(byte));
  EXPECT_EQ(Bytes(bytes.c_str()), bytes);
}

TEST(CATUnicodeString, JoinsACharacterWhoseBytesComeInTwoPieces) {
  if (!kTextIsUtf8) GTEST_SKIP() << "the 8-bit encoding is not UTF-8";
  CATUnicodeString text("x\xE2\x82");
  EXPECT_EQ(text.GetLengthInChar(), 3);
  text += "\xAC";
  EXPECT_EQ(Bytes(text), "x\xE2\x82\xAC");
  EXPECT_EQ(text.GetLengthInChar(), 2);
  EXPECT_EQ(text.ConvertToWideChar(), L"x\u20AC");
}

TEST(CATUnicodeString, CountsCharactersAndBytes) {
  if (!kTextIsUtf8) GTEST_SKIP() << "the 8-bit encoding is not UTF-8";
  const CATUnicodeString text("\xC3\xA9\xE2\x82\xAC\xF0\x9F\x99\x82z");
  EXPECT_EQ(text.GetLengthInChar(), 4);
  EXPECT_EQ(text.GetLengthInByte(), 10);
}

TEST(CATUnicodeString, CountsAByteThatIsNoPartOfACharacterAsOne) {
  if (!kTextIsUtf8) GTEST_SKIP() << "the 8-bit encoding is not UTF-8";
  EXPECT_EQ(CATUnicodeString("a\xFF\xC3z\xE9").GetLengthInChar(), 5);
}

TEST(CATUnicodeString, CountsRightHoweverItCameToBe) {
  CATUnicodeString text("ab\\");
  EXPECT_EQ(text.GetLengthInChar(), 3);
  text += "cd";
  EXPECT_EQ(text.GetLengthInChar(), 5);
  text.ReplaceSubString("b\\", "");
  EXPECT_EQ(text.GetLengthInChar(), 3);
  CATUnicodeString moved(std::move(text));
  EXPECT_EQ(moved.GetLengthInChar(), 3);
  text = "a long text in what was moved from";
  EXPECT_EQ(text.GetLengthInChar(), 34);
  moved = std::move(text);
  EXPECT_EQ(moved.GetLengthInChar(), 34);
  text = moved;
  text += moved;
  EXPECT_EQ(text.GetLengthInChar(), 68);
  text = "x";
  EXPECT_EQ(text.GetLengthInChar(), 1);
}

TEST(CATUnicodeString, AppendsItself) {
  CATUnicodeString text("ab");
  text += text;
  text += text.ConvertToChar() + 1;
  EXPECT_EQ(Bytes(text), "ababbab");
  text = text.ConvertToChar() + 5;
  EXPECT_EQ(Bytes(text), "ab");
}

// A long text moves when it grows.
TEST(CATUnicodeString, AppendsItselfHoweverLongItIs) {
  std::string bytes;
  for (int number = 0; bytes.size() < (700u << 10); ++number) bytes += std::to_string(number) + " ";
  CATUnicodeString text(bytes.c_str());
  text += text;
  EXPECT_TRUE(Bytes(text) == bytes + bytes);
  text = bytes.c_str();
  text += text.ConvertToChar() + 1;
  EXPECT_TRUE(Bytes(text) == bytes + bytes.substr(1));
}

TEST(CATUnicodeString, AddsUp) {
  const CATUnicodeString left("a");
  const CATUnicodeString sum = left + "b" + CATUnicodeString("c");
  EXPECT_EQ(Bytes(sum), "abc");
  EXPECT_EQ(Bytes(left), "a");
}

TEST(CATUnicodeString, ComparesByBytes) {
  EXPECT_TRUE(CATUnicodeString("Unknown") == "Unknown");
  EXPECT_FALSE(CATUnicodeString("Unknown\r") == "Unknown");
  EXPECT_FALSE(CATUnicodeString("unknown") == "Unknown");
}

TEST(CATUnicodeString, ReplacesOnlyTheFirstOccurrence) {
  CATUnicodeString text("\\w\\a\\w\\a");
  text.ReplaceSubString("\\w\\", "<>");
  EXPECT_EQ(Bytes(text), "<>a\\w\\a");
}

TEST(CATUnicodeString, ReplacesNothingWhenTheSearchedTextIsEmptyOrMissing) {
  CATUnicodeString text("abc");
  text.ReplaceSubString("", "x");
  text.ReplaceSubString("B", "x");
  text.ReplaceSubString("abcd", "x");
  EXPECT_EQ(Bytes(text), "abc");
}

TEST(CATUnicodeString, ReplacesWithItselfAndAllOfIt) {
  CATUnicodeString text("abc");
  text.ReplaceSubString("b", text);
  EXPECT_EQ(Bytes(text), "aabcc");
  text.ReplaceSubString(text, "");
  EXPECT_EQ(Bytes(text), "");
}

TEST(CATUnicodeString, WritesNumbersInTheFormatGiven) {
  EXPECT_EQ(Bytes(CATUnicodeString::BuildFromNum(0.2, "%g")), "0.2");
  EXPECT_EQ(Bytes(CATUnicodeString::BuildFromNum(1234567.0, "%g")), "1.23457e+06");
  EXPECT_EQ(Bytes(CATUnicodeString::BuildFromNum(0.0, "%g")), "0");
  EXPECT_EQ(CATUnicodeString::BuildFromNum(1.0, "%300.0f").GetLengthInByte(), 300);
  EXPECT_EQ(Bytes(CATUnicodeString::BuildFromNum(1.0, nullptr)), "");
}

TEST(CATUnicodeString, ConvertsFromWideTextAndBack) {
  if (!kTextIsUtf8) GTEST_SKIP() << "the 8-bit encoding is not UTF-8";
  const std::wstring wide = L"a\u00E9\u20AC\U0001F642";
  const CATUnicodeString text(wide.c_str());
  EXPECT_EQ(Bytes(text), "a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x99\x82");
  EXPECT_EQ(text.ConvertToWideChar(), wide);
}

// A cost that grew with the square of the length would take hours here.
TEST(CATUnicodeString, GrowsPieceByPieceAtACostOfThePieces) {
  std::string all;
  CATUnicodeString text;
  for (int pieces = 1; pieces <= 16384; ++pieces) {
    std::string piece = std::to_string(pieces);
    piece.resize(4096, '\\');
    text += piece.c_str();
    all += piece;
    ASSERT_EQ(text.GetLengthInChar(), pieces * 4096);
  }
  EXPECT_TRUE(Bytes(text) == all);
}

}  // namespace
