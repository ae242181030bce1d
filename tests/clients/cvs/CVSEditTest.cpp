#include "CVSWorkingCopies.h"

namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

constexpr int kRefused = -2147467259;

// The commands of zrkhost that change a working copy.
class CVSEdit : public CVSWorkingCopies {
protected:
  CVSEdit() { CheckOut({{kCar, "car\n"}, {kWheel, "wheel\n"}}); }

  std::string Editors() const { return repository_.Editors(annasCopy_, kWheel); }

  void AnnaEditsAndChanges() const {
    Anna({"edit " + kWheelProduct});
    WriteFile(annasCopy_ / kWheel, "changed\n");
  }

  // The only dialog of the call's only command.
  static Json Dialog(const Json& report) {
    const std::vector<Json> dialogs = EventsOf(CommandOf(report), "dialog");
    EXPECT_THAT(dialogs, SizeIs(1));
    return dialogs.empty() ? Json{{"message", ""}} : dialogs[0];
  }
};
ZRK_THROUGH_BOTH_ROOTS(CVSEdit);

TEST_P(CVSEdit, MakesAWatchedFileWritable) {
  ASSERT_FALSE(IsWritable(annasCopy_ / kWheel));
  const Json report = Anna({"edit " + kWheelProduct});
  EXPECT_EQ(CommandOf(report).at("result"), 0);
  EXPECT_TRUE(IsWritable(annasCopy_ / kWheel));
  EXPECT_THAT(Editors(), StartsWith(kWheel + "\t" + CVSRepository::NameOf(anna_.Name()) + "\t"));
  const Json attributes = AttributesByFile(report, annasCopy_).at(kWheel);
  EXPECT_EQ(attributes.at("Status"), "Edit");
  EXPECT_EQ(attributes.at("Revision"), "1.1.1.1");
}

TEST_P(CVSEdit, ShowsTheFileLockedToTheOtherUser) {
  CheckOutForBen();
  Anna({"edit " + kWheelProduct});
  const auto attributes = AttributesByFile(Ben({"refresh"}), bensCopy_);
  EXPECT_EQ(attributes.at(kWheel).at("Status"), "Locked");
  EXPECT_THAT(attributes.at(kWheel).at("Comment"), StartsWith(std::string(kModule) + "/" + kWheel + "\n" +
                                                              CVSRepository::NameOf(anna_.Name()) + "\n"));
  EXPECT_THAT(attributes.at(kWheel).at("Comment"), EndsWith(annasParent_.string()));
  EXPECT_EQ(attributes.at(kCar).at("Status"), "ReadOnly");
}

TEST_P(CVSEdit, IsRefusedWhileAnotherEdits) {
  CheckOutForBen();
  BenEdits(kWheel);
  const Json report = Anna({"edit " + kWheelProduct}, 1);
  EXPECT_EQ(CommandOf(report).at("result"), 1);
  EXPECT_THAT(Dialog(report).at("message"), HasSubstr(kWheel + "' due to existing editors"));
  EXPECT_FALSE(IsWritable(annasCopy_ / kWheel));
}

TEST_P(CVSEdit, IsRefusedWithAWarningWhileThereIsANewerRevision) {
  CheckOutForBen();
  repository_.Commit(bensCopy_, kWheel, "newer\n");
  const Json report = Anna({"edit " + kWheelProduct}, 1);
  EXPECT_EQ(CommandOf(report).at("result"), kRefused);
  EXPECT_EQ(CommandOf(report).at("output"), "do update first\n");
  EXPECT_THAT(Dialog(report).at("message"),
              HasSubstr("newer version of " + std::string(kModule) + "/" + kWheel));
  EXPECT_FALSE(IsWritable(annasCopy_ / kWheel));
  EXPECT_THAT(Editors(), IsEmpty());
}

TEST_P(CVSEdit, GivesAnUnchangedFileBackReadOnly) {
  Anna({"edit " + kWheelProduct});
  const Json report = Anna({"unedit " + kWheelProduct});
  EXPECT_EQ(CommandOf(report).at("result"), 0);
  EXPECT_THAT(EventsOf(CommandOf(report), "dialog"), IsEmpty());
  EXPECT_FALSE(IsWritable(annasCopy_ / kWheel));
  EXPECT_THAT(Editors(), IsEmpty());
  EXPECT_EQ(AttributesByFile(report, annasCopy_).at(kWheel).at("Status"), "ReadOnly");
}

TEST_P(CVSEdit, GivesAChangedFileBackWithTheRepositorysText) {
  AnnaEditsAndChanges();
  const Json report =
      anna_.Host({"--folder", annasCopy_.string(), "--answer", "yes", "-c", "unedit " + kWheelProduct});
  EXPECT_EQ(CommandOf(report).at("result"), 0);
  EXPECT_THAT(Dialog(report).at("message"), HasSubstr(kWheel));
  EXPECT_TRUE(anna_.WaitUntilNoProcessIsLeft());
  EXPECT_EQ(ReadFile(annasCopy_ / kWheel), "wheel\n");
  EXPECT_FALSE(IsWritable(annasCopy_ / kWheel));
  EXPECT_THAT(Editors(), IsEmpty());
  EXPECT_EQ(AttributesByFile(report, annasCopy_).at(kWheel).at("Status"), "ReadOnly");
}

TEST_P(CVSEdit, KeepsAChangedFileThatIsNotToBeReverted) {
  AnnaEditsAndChanges();
  const Json report =
      anna_.Host({"--folder", annasCopy_.string(), "--answer", "no", "-c", "unedit " + kWheelProduct}, 1);
  EXPECT_EQ(CommandOf(report).at("result"), 1);
  EXPECT_EQ(Dialog(report).at("answer"), 4);
  EXPECT_TRUE(anna_.WaitUntilNoProcessIsLeft());
  EXPECT_EQ(ReadFile(annasCopy_ / kWheel), "changed\n");
  EXPECT_TRUE(IsWritable(annasCopy_ / kWheel));
  EXPECT_THAT(Editors(), StartsWith(kWheel + "\t" + CVSRepository::NameOf(anna_.Name()) + "\t"));
}

TEST_P(CVSEdit, OfAFileThatIsNotTakenIsNotGivenBack) {
  CheckOutForBen();
  BenEdits(kWheel);
  const Json report = Anna({"unedit " + kWheelProduct}, 1);
  EXPECT_EQ(CommandOf(report).at("result"), kRefused);
  EXPECT_THAT(repository_.Editors(bensCopy_, kWheel), StartsWith(kWheel + "\t" + ben_.Name() + "\t"));
}

TEST_P(CVSEdit, SchedulesARemoval) {
  const Json report = Anna({"remove \"" + (annasCopy_ / kWheel).string() + "\""});
  EXPECT_EQ(CommandOf(report).at("result"), 0);
  EXPECT_FALSE(std::filesystem::exists(annasCopy_ / kWheel));
  EXPECT_EQ(RunCommandOrThrow({"cvs", "-n", "-q", "update"},
                              {.Folder = annasCopy_, .Input = "", .Environment = {}}),
            "R " + kWheel + "\n");
}

TEST_P(CVSEdit, AsksTheClientAboutOneFile) {
  repository_.Tag(annasCopy_, "RELEASE-1");
  const Json record = CommandOf(Anna({"status " + kWheelProduct})).at("record");
  // The reader leaves out the blanks of the name and keeps the line's carriage return.
  EXPECT_EQ(record.at("File"), "Radlinksgröße.CATPart\t");
  EXPECT_EQ(record.at("Status"), "Up-to-date\r");
  EXPECT_EQ(record.at("WorkingRevision"), "1.1.1.1");
  EXPECT_EQ(record.at("RepositoryRevision"),
            "1.1.1.1" + repository_.LocalRoot() + "/" + kModule + "/" + kWheel + ",v");
  EXPECT_THAT(record.at("ExistingTags"), StartsWith("RELEASE-1 "));
}

TEST_P(CVSEdit, ShowsTheAdaptersWordWhereThereIsNoClient) {
  anna_.Set("PATH", folder_.Path().string());
  const Json report = Anna({"edit " + kWheelProduct}, 1);
  EXPECT_EQ(CommandOf(report).at("result"), 1);
  EXPECT_THAT(Dialog(report).at("message"), StartsWith("cvs.exe: the program \"cvs\" is not on the PATH"));
  EXPECT_FALSE(IsWritable(annasCopy_ / kWheel));
}

TEST_P(CVSEdit, FindsNothingInARefreshWhereThereIsNoClient) {
  anna_.Set("PATH", folder_.Path().string());
  const Json report = Anna({"refresh"});
  EXPECT_THAT(EventsOf(CommandOf(report), "launch"), SizeIs(2));
  EXPECT_THAT(CommandOf(report).at("output"), HasSubstr(" not found!\n"));
  for (const auto& [file, attributes] : AttributesByFile(report, annasCopy_)) EXPECT_EQ(attributes, nullptr);
}

TEST_P(CVSEdit, TellsThatThereIsNoClientForTheHost) {
  const Json report =
      anna_.Host({"--folder", annasCopy_.string(), "--clients", "none", "-c", "edit " + kWheelProduct}, 1);
  EXPECT_EQ(CommandOf(report).at("result"), kRefused);
  EXPECT_THAT(EventsOf(CommandOf(report), "launch"), IsEmpty());
  EXPECT_THAT(EventsOf(CommandOf(report), "dialog"), SizeIs(1));
}

}  // namespace
