#include "text/Characters.h"

#include <gtest/gtest.h>

#include "CATUnicodeString.h"
#include "ZRKCorServices.h"
#include "support/JapaneseCodePage.h"

namespace {

// In code page 932 U+8868 is 95 5C, and 5C is "\".
class TextInCodePage932 : public testing::Test {
protected:
  void SetUp() override {
    if (!JapaneseCodePage::IsActive()) GTEST_SKIP() << "the system's code page is not 932";
  }

private:
  JapaneseCodePage page_;
};

TEST_F(TextInCodePage932, IsCountedByLetters) {
  EXPECT_EQ(CATUnicodeString("a\x95\\b\\").GetLengthInChar(), 4);
  EXPECT_EQ(CATUnicodeString("a\x95\\b\\").GetLengthInByte(), 5);
}

TEST_F(TextInCodePage932, JoinsALetterWhoseBytesComeInTwoPieces) {
  CATUnicodeString text("a\x95");
  text.GetLengthInChar();
  text += "\\";
  EXPECT_EQ(text.GetLengthInChar(), 2);
  EXPECT_EQ(text.ConvertToWideChar(), L"a\u8868");
}

TEST_F(TextInCodePage932, GoesToWideTextAndBack) {
  EXPECT_EQ(CATUnicodeString("\\\x95\\\xB1").ConvertToWideChar(), L"\\\u8868\uFF71");
  EXPECT_STREQ(CATUnicodeString(L"\\\u8868\uFF71").ConvertToChar(), "\\\x95\\\xB1");
  EXPECT_STREQ(CATUnicodeString(L"\u20AC").ConvertToChar(), "?");
}

TEST_F(TextInCodePage932, IsReplacedByLetters) {
  CATUnicodeString text("\x95\\a\\a");
  text.ReplaceSubString("\\a", "<>");
  EXPECT_STREQ(text.ConvertToChar(), "\x95\\a<>");
}

TEST_F(TextInCodePage932, IsSplitByLetters) {
  CATUnicodeString folder;
  CATUnicodeString name;
  ZRKCorParserServices::SplitFilePath("C:\\w\\a\x95\\", folder, name);
  EXPECT_STREQ(folder.ConvertToChar(), "C:\\w");
  EXPECT_STREQ(name.ConvertToChar(), "a\x95\\");
}

TEST(TextByCharacters, IsTakenByBytesWhereLettersAreNotOfTwo) {
  EXPECT_EQ(standin::CharacterBytes("ab"), 1u);
  EXPECT_EQ(standin::FindByCharacters("ababc", "abc"), 2u);
  EXPECT_EQ(standin::FindByCharacters("ab", "abc"), std::string_view::npos);
  EXPECT_EQ(standin::FindLastByCharacters("a\\b\\c", '\\'), 3u);
  std::string text = "\\a\\";
  standin::ReplaceByCharacters(text, '\\', '/');
  EXPECT_EQ(text, "/a/");
}

}  // namespace
