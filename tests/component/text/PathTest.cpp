// The parts of a path, and where a text occurs in one.

#include "text/Path.h"

#include <gtest/gtest.h>

#include "support/JapaneseCodePage.h"

using zrk::text::Find;
using zrk::text::FolderAbove;
using zrk::text::FolderOf;
using zrk::text::NameOf;

TEST(Path, IsSplitAtItsLastSeparator) {
  EXPECT_EQ(FolderOf("C:\\w\\sub\\a.CATPart"), "C:\\w\\sub");
  EXPECT_EQ(NameOf("C:\\w\\sub\\a.CATPart"), "a.CATPart");
  EXPECT_EQ(FolderOf("\\a"), "");
  EXPECT_EQ(NameOf("\\a"), "a");
  EXPECT_EQ(FolderOf("C:\\w\\"), "C:\\w");
  EXPECT_EQ(NameOf("C:\\w\\"), "");
}

TEST(Path, IsFolderAndNameWithoutASeparator) {
  EXPECT_EQ(FolderOf("a.CATPart"), "a.CATPart");
  EXPECT_EQ(NameOf("a.CATPart"), "a.CATPart");
  EXPECT_EQ(FolderOf("C:/w/a"), "C:/w/a");
  EXPECT_EQ(NameOf("C:/w/a"), "C:/w/a");
  EXPECT_EQ(FolderOf(""), "");
  EXPECT_EQ(NameOf(""), "");
}

TEST(Path, HasTheFoldersAboveItUpToADriveOrTheRootOfTheCurrentOne) {
  EXPECT_EQ(FolderAbove("C:\\w\\sub"), "C:\\w");
  EXPECT_EQ(FolderAbove("C:\\w"), "C:");
  EXPECT_EQ(FolderAbove("C:"), std::nullopt);
  EXPECT_EQ(FolderAbove("\\w\\sub"), "\\w");
  EXPECT_EQ(FolderAbove("\\w"), "");
  EXPECT_EQ(FolderAbove(""), std::nullopt);
  EXPECT_EQ(FolderAbove("w"), std::nullopt);
}

TEST(Path, HasTheFoldersAboveItUpToAShare) {
  EXPECT_EQ(FolderAbove("\\\\server\\share\\w\\sub"), "\\\\server\\share\\w");
  EXPECT_EQ(FolderAbove("\\\\server\\share\\w"), "\\\\server\\share");
  EXPECT_EQ(FolderAbove("\\\\server\\share"), std::nullopt);
}

TEST(Path, IsSearchedFromTheFront) {
  EXPECT_EQ(Find("C:\\w\\p\\p", "p"), 5u);
  EXPECT_EQ(Find("C:\\w\\p", "p"), 5u);
  EXPECT_EQ(Find("C:\\w", "p"), std::string_view::npos);
  EXPECT_EQ(Find("C:\\w", "C:\\w\\p"), std::string_view::npos);
  EXPECT_EQ(Find("C:\\w", ""), 0u);
  EXPECT_EQ(Find("", ""), 0u);
  EXPECT_EQ(Find("", "p"), std::string_view::npos);
}

// In code page 932 two letters end in the byte of "\": U+8868 is 95 5C and U+30BD is 83 5C.
class PathInCodePage932 : public testing::Test {
protected:
  void SetUp() override {
    if (!JapaneseCodePage::IsActive()) GTEST_SKIP() << "the system's code page is not 932";
  }

private:
  JapaneseCodePage codePage_;
};

TEST_F(PathInCodePage932, IsNotSplitWithinALetter) {
  EXPECT_EQ(FolderOf("C:\\\x83\\\\\x95\\.CATPart"), "C:\\\x83\\");
  EXPECT_EQ(NameOf("C:\\\x83\\\\\x95\\.CATPart"), "\x95\\.CATPart");
  EXPECT_EQ(NameOf("C:\\w\\\x95\\"), "\x95\\");
  EXPECT_EQ(FolderOf("\x95\\.CATPart"), "\x95\\.CATPart");
}

TEST_F(PathInCodePage932, IsSearchedByLetters) {
  EXPECT_EQ(Find("\x95\\p\\p", "\\p"), 3u);
  EXPECT_EQ(Find("\x95\\", "\\"), std::string_view::npos);
  EXPECT_EQ(Find("C:\\\x83\\", "\x83\\"), 3u);
  // 83 41 is one letter; its second byte is that of "A".
  EXPECT_EQ(Find("\x83"
                 "AA",
                 "A"),
            2u);
}

// 83 83 is one letter too.
TEST_F(PathInCodePage932, IsSplitBehindALetterWhoseSecondByteMayBeginOne) {
  EXPECT_EQ(NameOf("C:\\\x83\x83\\p"), "p");
  EXPECT_EQ(NameOf("C:\\\x83\x83\x83\\p"), "\x83\x83\x83\\p");
  EXPECT_EQ(FolderOf("\x83\x83\\p"), "\x83\x83");
}

TEST_F(PathInCodePage932, MayEndWithinALetter) {
  EXPECT_EQ(NameOf("C:\\\x95"), "\x95");
  EXPECT_EQ(Find("C:\\\x95", "\\p"), std::string_view::npos);
}
