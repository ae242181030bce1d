#include "commands/ShownStatus.h"

#include <gtest/gtest.h>

namespace {

using zrkhost::AttributeValues;
using zrkhost::ShownStatus;

std::string Shown(const std::string& revision, const std::string& status, const std::string& comment) {
  return ShownStatus(
      AttributeValues{{"Revision", revision}, {"Status", status}, {"Release", "r"}, {"Comment", comment}});
}

TEST(ShownStatus, GivesStatusAndRevision) {
  EXPECT_EQ(Shown("1.4", "Edit", ""), ", now \"Edit\", revision 1.4");
}

TEST(ShownStatus, GivesACommentOnOneLine) {
  EXPECT_EQ(Shown("", "Locked", "Locked by: \nben\n-------------\n"), ", now \"Locked\" (Locked by: ben)");
  EXPECT_EQ(Shown("7", "Locked", "ben\nweek 12"), ", now \"Locked\" (ben week 12), revision 7");
}

TEST(ShownStatus, LeavesOutACommentOfLineEndsAlone) {
  EXPECT_EQ(Shown("7", "ReadOnly", "\n"), ", now \"ReadOnly\", revision 7");
}

TEST(ShownStatus, KeepsControlCharactersFromTheTerminal) {
  EXPECT_EQ(Shown("\x1b", "\x07", "\x7f"), ", now \"\\x07\" (\\x7f), revision \\x1b");
}

TEST(ShownStatus, SaysThatThereIsNoStatus) {
  EXPECT_EQ(ShownStatus(std::nullopt), ", now no status");
  EXPECT_EQ(Shown("", "", ""), ", now no status");
  EXPECT_EQ(Shown("1.4", "", "ben"), ", now no status (ben), revision 1.4");
  EXPECT_EQ(ShownStatus(AttributeValues{{"Revision", "1.4"}}), ", now no status, revision 1.4");
}

}  // namespace
