#include "commands/Commands.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/CallError.h"
#include "base/Encoding.h"
#include "commands/CommandTable.h"

namespace {

using testing::HasSubstr;
using zrkhost::CallError;
using zrkhost::ParseCommand;

TEST(Commands, AreNoneInAnEmptyLineOrAComment) {
  EXPECT_FALSE(ParseCommand(""));
  EXPECT_FALSE(ParseCommand("  # tree"));
}

TEST(Commands, KeepTheirLineAsItWasGiven) {
  EXPECT_EQ(ParseCommand("  tree # now")->Line, "  tree # now");
}

TEST(Commands, MeanTheRootWithoutAPath) {
  EXPECT_FALSE(ParseCommand("edit")->ProductPath);
}

TEST(Commands, TakeAPath) {
  for (const char* name : {"refresh", "status", "edit", "unedit", "storage", "cvsable", "modifiable"}) {
    EXPECT_EQ(ParseCommand(std::string(name) + " \"car/axle 1\"")->ProductPath, "car/axle 1") << name;
    EXPECT_THROW(ParseCommand(std::string(name) + " a b"), CallError) << name;
  }
}

TEST(Commands, TakeAFile) {
  for (const char* name : {"remove", "delete"}) {
    EXPECT_EQ(ParseCommand(std::string(name) + " /a/b")->File, "/a/b") << name;
    EXPECT_THROW(ParseCommand(name), CallError) << name;
    EXPECT_THROW(ParseCommand(std::string(name) + " a b"), CallError) << name;
  }
}

TEST(Commands, TakeNothingMoreWhereThereIsNothingToTake) {
  for (const char* name : {"tree", "commtime", "help", "quit"}) {
    EXPECT_TRUE(ParseCommand(name)) << name;
    EXPECT_THROW(ParseCommand(std::string(name) + " car"), CallError) << name;
  }
}

TEST(Commands, AskAboutAnInstanceOnlyInStatus) {
  EXPECT_FALSE(ParseCommand("status car")->Instance);
  EXPECT_TRUE(ParseCommand("status --instance car")->Instance);
  EXPECT_EQ(ParseCommand("status --instance car")->ProductPath, "car");
  EXPECT_TRUE(ParseCommand("status --instance")->Instance);
  EXPECT_THROW(ParseCommand("edit --instance car"), CallError);
}

TEST(Commands, AskTheManagerOfTheRootOnlyInRefreshAndStatus) {
  EXPECT_FALSE(ParseCommand("refresh car")->ByRoot);
  EXPECT_TRUE(ParseCommand("refresh --by-root car")->ByRoot);
  EXPECT_TRUE(ParseCommand("status --by-root")->ByRoot);
  EXPECT_THROW(ParseCommand("edit --by-root car"), CallError);
}

TEST(Commands, TakeTheirOptionsBeforeOrBehindTheArgument) {
  for (const char* line : {"status --instance --by-root car", "status car --by-root --instance",
                           "status --by-root car --instance"}) {
    const auto command = ParseCommand(line);
    EXPECT_TRUE(command->Instance && command->ByRoot) << line;
    EXPECT_EQ(command->ProductPath, "car") << line;
  }
}

TEST(Commands, RefuseOptionsThatTheyDoNotHave) {
  try {
    ParseCommand("refresh --byroot car");
    FAIL();
  } catch (const CallError& error) {
    EXPECT_STREQ(error.what(), "unknown option \"--byroot\"; use: refresh [--by-root] [PATH]");
  }
}

TEST(Commands, TakeAQuotedOptionForAPath) {
  EXPECT_EQ(ParseCommand(R"(status "--instance")")->ProductPath, "--instance");
}

TEST(Commands, MustBeKnown) {
  try {
    ParseCommand("edite car");
    FAIL();
  } catch (const CallError& error) {
    EXPECT_THAT(error.what(), HasSubstr("edite"));
  }
  EXPECT_THROW(ParseCommand("Edit"), CallError);
}

TEST(Commands, AreNamedInUtf8WhenTheyAreNotKnown) {
  try {
    ParseCommand("\xff");
    FAIL();
  } catch (const CallError& error) {
    EXPECT_EQ(error.what(), "unknown command \"" + zrkhost::Utf8FromNative("\xff") + "\"");
  }
}

TEST(Commands, AreAllExplained) {
  for (const char* name : {"tree", "refresh", "status", "edit", "unedit", "remove", "delete", "commtime",
                           "storage", "cvsable", "modifiable", "help", "quit"}) {
    EXPECT_THAT(zrkhost::CommandsHelp(), HasSubstr(std::string("  ") + name + " "));
  }
}

}  // namespace
