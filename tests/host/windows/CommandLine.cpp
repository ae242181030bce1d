#include "windows/CommandLine.h"

#include <gmock/gmock.h>

using standin::SplitCommandLine;
using testing::ElementsAre;

TEST(CommandLine, AlwaysHasAFirstArgument) {
  EXPECT_THAT(SplitCommandLine(""), ElementsAre(""));
}

TEST(CommandLine, LeadingBlankMakesTheProgramNameEmpty) {
  EXPECT_THAT(SplitCommandLine(" a b"), ElementsAre("", "a", "b"));
  EXPECT_THAT(SplitCommandLine("\ta"), ElementsAre("", "a"));
  EXPECT_THAT(SplitCommandLine("   a"), ElementsAre("", "a"));
  EXPECT_THAT(SplitCommandLine(" "), ElementsAre(""));
}

TEST(CommandLine, QuotesHoldTheProgramNameTogether) {
  EXPECT_THAT(SplitCommandLine(R"("a b" c)"), ElementsAre("a b", "c"));
  EXPECT_THAT(SplitCommandLine(R"(a" "b c)"), ElementsAre("a b", "c"));
  EXPECT_THAT(SplitCommandLine(R"("a b)"), ElementsAre("a b"));
  EXPECT_THAT(SplitCommandLine(R"("a""b" c)"), ElementsAre("ab", "c"));
}

TEST(CommandLine, BackslashesInTheProgramNameAreLiteral) {
  EXPECT_THAT(SplitCommandLine(R"(\bin\a b)"), ElementsAre(R"(\bin\a)", "b"));
  EXPECT_THAT(SplitCommandLine(R"("c:\d\" b)"), ElementsAre(R"(c:\d\)", "b"));
}

TEST(CommandLine, BlanksAndTabsSeparateArguments) {
  EXPECT_THAT(SplitCommandLine("p a  b\tc \t d "), ElementsAre("p", "a", "b", "c", "d"));
}

TEST(CommandLine, OtherWhiteSpaceDoesNotSeparate) {
  EXPECT_THAT(SplitCommandLine("p a\nb\rc\vd"), ElementsAre("p", "a\nb\rc\vd"));
}

TEST(CommandLine, QuotesHoldAnArgumentTogether) {
  EXPECT_THAT(SplitCommandLine(R"(p "a b")"), ElementsAre("p", "a b"));
  EXPECT_THAT(SplitCommandLine(R"(p a" "b"	"c)"), ElementsAre("p", "a b\tc"));
  EXPECT_THAT(SplitCommandLine(R"(p "" b)"), ElementsAre("p", "", "b"));
}

TEST(CommandLine, OpenQuoteReachesToTheEnd) {
  EXPECT_THAT(SplitCommandLine(R"(p "a b )"), ElementsAre("p", "a b "));
  EXPECT_THAT(SplitCommandLine(R"(p a ")"), ElementsAre("p", "a", ""));
}

TEST(CommandLine, BackslashesAwayFromAQuoteAreLiteral) {
  EXPECT_THAT(SplitCommandLine(R"(p a\b\\c\ d\)"), ElementsAre("p", R"(a\b\\c\)", R"(d\)"));
  EXPECT_THAT(SplitCommandLine(R"(p "sub dir\a.CATPart")"), ElementsAre("p", R"(sub dir\a.CATPart)"));
}

TEST(CommandLine, EvenBackslashesBeforeAQuoteAreHalvedAndTheQuoteCounts) {
  EXPECT_THAT(SplitCommandLine(R"(p a\\"b c" d)"), ElementsAre("p", R"(a\b c)", "d"));
  EXPECT_THAT(SplitCommandLine(R"(p "a b\\" c)"), ElementsAre("p", R"(a b\)", "c"));
  EXPECT_THAT(SplitCommandLine(R"(p "a\\\\" b)"), ElementsAre("p", R"(a\\)", "b"));
}

TEST(CommandLine, OddBackslashesBeforeAQuoteGiveALiteralQuote) {
  EXPECT_THAT(SplitCommandLine(R"(p \"a b\")"), ElementsAre("p", R"("a)", R"(b")"));
  EXPECT_THAT(SplitCommandLine(R"(p a\\\"b c)"), ElementsAre("p", R"(a\"b)", "c"));
  EXPECT_THAT(SplitCommandLine(R"(p "a\" b" c)"), ElementsAre("p", R"(a" b)", "c"));
}

TEST(CommandLine, TwoQuotesWithinQuotesGiveALiteralOne) {
  EXPECT_THAT(SplitCommandLine(R"(p "a "" b" c)"), ElementsAre("p", R"(a " b)", "c"));
  EXPECT_THAT(SplitCommandLine(R"(p """a b""" c)"), ElementsAre("p", R"("a b")", "c"));
  EXPECT_THAT(SplitCommandLine(R"(p "a\\"" b" c)"), ElementsAre("p", R"(a\" b)", "c"));
}

TEST(CommandLine, BytesAboveAsciiPassAsTheyAre) {
  EXPECT_THAT(SplitCommandLine("p \xC3\xA4 \xFF\xFE"), ElementsAre("p", "\xC3\xA4", "\xFF\xFE"));
}
