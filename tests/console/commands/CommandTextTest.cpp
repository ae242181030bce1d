#include "commands/CommandText.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/CallError.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using zrkhost::SplitCommand;
using zrkhost::SplitLines;

std::vector<std::string> Words(const std::string& line) {
  std::vector<std::string> words;
  for (const auto& word : SplitCommand(line)) words.push_back(word.Text);
  return words;
}

TEST(CommandText, IsSplitAtBlanksAndTabs) {
  EXPECT_THAT(Words("edit car"), ElementsAre("edit", "car"));
  EXPECT_THAT(Words(" \tedit\t  car \t"), ElementsAre("edit", "car"));
}

TEST(CommandText, MayHoldNothing) {
  EXPECT_THAT(Words(""), IsEmpty());
  EXPECT_THAT(Words("  \t"), IsEmpty());
}

TEST(CommandText, KeepsBlanksInDoubleQuotes) {
  EXPECT_THAT(Words(R"(edit "my car/axle 1")"), ElementsAre("edit", "my car/axle 1"));
  EXPECT_THAT(Words(R"(remove "")"), ElementsAre("remove", ""));
}

TEST(CommandText, TakesADoubledQuoteForOne) {
  EXPECT_THAT(Words(R"(edit "a ""b"" c")"), ElementsAre("edit", R"(a "b" c)"));
  EXPECT_THAT(Words(R"("""")"), ElementsAre("\""));
}

TEST(CommandText, LeavesQuotesInsideAWordAsTheyAre) {
  EXPECT_THAT(Words(R"(edit a"b)"), ElementsAre("edit", R"(a"b)"));
}

TEST(CommandText, GivesBackslashesNoMeaning) {
  EXPECT_THAT(Words(R"(remove \a\b "\c d\")"), ElementsAre("remove", R"(\a\b)", R"(\c d\)"));
}

TEST(CommandText, EndsAtACommentThatBeginsAWord) {
  EXPECT_THAT(Words("# edit car"), IsEmpty());
  EXPECT_THAT(Words("edit car # \"now"), ElementsAre("edit", "car"));
  EXPECT_THAT(Words("edit #1"), ElementsAre("edit"));
}

TEST(CommandText, KeepsANumberSignInsideAWordOrInQuotes) {
  EXPECT_THAT(Words("remove a#1"), ElementsAre("remove", "a#1"));
  EXPECT_THAT(Words(R"(remove "#1")"), ElementsAre("remove", "#1"));
}

TEST(CommandText, RefusesAQuoteThatIsNotClosed) {
  EXPECT_THROW(SplitCommand(R"(edit "car)"), zrkhost::CallError);
  EXPECT_THROW(SplitCommand(R"(edit "car"")"), zrkhost::CallError);
}

TEST(CommandText, RefusesWhatTouchesAClosingQuote) {
  EXPECT_THROW(SplitCommand(R"(edit "car"x)"), zrkhost::CallError);
}

TEST(CommandText, RefusesTheCharacter0) {
  EXPECT_THROW(SplitCommand(std::string("edit a\0b", 8)), zrkhost::CallError);
}

TEST(CommandLines, EndInLineFeedsWithOrWithoutCarriageReturns) {
  EXPECT_THAT(SplitLines("tree\r\n\nquit"), ElementsAre("tree", "", "quit"));
  EXPECT_THAT(SplitLines("tree\n"), ElementsAre("tree"));
  EXPECT_THAT(SplitLines(""), IsEmpty());
}

TEST(CommandLines, SkipAByteOrderMark) {
  EXPECT_THAT(SplitLines("\xEF\xBB\xBFtree\n"), ElementsAre("tree"));
}

}  // namespace
