#include "CVSArguments.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Texts = std::vector<std::string>;

Texts Translated(const Texts& arguments) {
  return TranslateCVSCall(arguments).Arguments;
}

TEST(CVSArguments, LeavesAnEmptyCallEmpty) {
  EXPECT_THAT(Translated({}), IsEmpty());
  EXPECT_EQ(TranslateCVSCall({}).Command, "");
}

TEST(CVSArguments, TurnsBackslashesOfFileArgumentsIntoSlashes) {
  EXPECT_THAT(Translated({"-d", "/cvs", "status", "-v", "proj\\sub\\a.CATPart", "c d.CATPart"}),
              ElementsAre("-d", "/cvs", "status", "-v", "proj/sub/a.CATPart", "c d.CATPart"));
}

TEST(CVSArguments, LeavesRootsAsTheyAre) {
  EXPECT_THAT(Translated({"-d", ":local:C:\\cvs", "-d:local:C:\\cvs", "remove", "-f", "a.txt"}),
              ElementsAre("-d", ":local:C:\\cvs", "-d:local:C:\\cvs", "remove", "-f", "a.txt"));
}

TEST(CVSArguments, LeavesValuesOfCommandOptionsAsTheyAre) {
  EXPECT_THAT(Translated({"update", "-r", "a\\b", "-D", "c\\d", "-Ie\\f", "g\\h"}),
              ElementsAre("update", "-r", "a\\b", "-D", "c\\d", "-Ie\\f", "g/h"));
  EXPECT_THAT(Translated({"edit", "-a", "a\\b", "c\\d"}), ElementsAre("edit", "-a", "a\\b", "c/d"));
}

TEST(CVSArguments, TakesEverythingBehindTwoHyphensForFiles) {
  EXPECT_THAT(Translated({"status", "--", "-r", "a\\b"}), ElementsAre("status", "--", "-r", "a/b"));
  EXPECT_THAT(Translated({"edit", "--", "-z"}), ElementsAre("edit", "--", "-z"));
}

TEST(CVSArguments, DropsTheEncryptionOption) {
  EXPECT_THAT(Translated({"-q", "-x", "unedit", "a"}), ElementsAre("-q", "unedit", "a"));
}

TEST(CVSArguments, KeepsAnXThatIsTheValueOfAnOption) {
  EXPECT_THAT(Translated({"-d", "-x", "unedit", "a"}), ElementsAre("-d", "-x", "unedit", "a"));
}

TEST(CVSArguments, DropsTheZOptionOfEditAndNothingBehindIt) {
  EXPECT_THAT(Translated({"-d", "/cvs", "-q", "-x", "edit", "-z", "-c", "a\\b"}),
              ElementsAre("-d", "/cvs", "-q", "edit", "-c", "a/b"));
}

TEST(CVSArguments, KeepsTheGlobalCompressionLevel) {
  EXPECT_THAT(Translated({"-z", "3", "edit", "a"}), ElementsAre("-z", "3", "edit", "a"));
  EXPECT_THAT(Translated({"-z", "edit", "status"}), ElementsAre("-z", "edit", "status"));
}

TEST(CVSArguments, AsksForEditorsWhereADryEditWould) {
  const CVSCall call = TranslateCVSCall({"-d", "/cvs", "-n", "edit", "a\\b", "c d"});
  EXPECT_THAT(call.Arguments, ElementsAre("-d", "/cvs", "-n", "editors", "a/b", "c d"));
  EXPECT_EQ(call.Command, "editors");
}

TEST(CVSArguments, KeepsOfADryEditOnlyTheOptionsThatEditorsKnows) {
  EXPECT_THAT(Translated({"-n", "edit", "-z", "-c", "-a", "commit", "-l", "--", "-c"}),
              ElementsAre("-n", "editors", "-l", "--", "-c"));
}

TEST(CVSArguments, LeavesADryUpdateADryUpdate) {
  EXPECT_THAT(Translated({"-n", "-q", "update", "a\\b"}), ElementsAre("-n", "-q", "update", "a/b"));
}

TEST(CVSArguments, NamesTheCommandBehindTheGlobalOptions) {
  EXPECT_EQ(TranslateCVSCall({"-d", "status", "-q", "edit", "status"}).Command, "edit");
  EXPECT_EQ(TranslateCVSCall({"-d", "status"}).Command, "");
}

TEST(CVSArguments, StandAnOptionWithoutItsValue) {
  EXPECT_THAT(Translated({"-d"}), ElementsAre("-d"));
  EXPECT_THAT(Translated({"update", "-r"}), ElementsAre("update", "-r"));
}

}  // namespace
