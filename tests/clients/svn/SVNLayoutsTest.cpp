#include "SVNStatus.h"
#include "SVNWorkingCopies.h"
#include "component/svn/SampleEntries.h"

namespace {

namespace fs = std::filesystem;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::Pair;
using testing::UnorderedElementsAre;

// Assemblies whose documents do not all lie in one working copy.
class SVNLayouts : public SVNWorkingCopy {
protected:
  SVNLayouts() {
    CheckOutFiles({"car", "sub/axle", "sub/wheel", "other/part"});
    Elsewhere({"lock", "sub/axle"});
    WriteFile(folder_ / "standard/bolt", "bolt\n");
    WriteFile(folder_ / "standard/nut", "nut\n");
  }

  std::string Copy(const std::string& folder = "") const { return folder_.Host(annasCopy_) + folder; }

  static constexpr const char* kBolt = "../standard/bolt";
  static constexpr const char* kNut = "../standard/nut";
};

TEST_F(SVNLayouts, MayHoldStandardPartsOutsideAnyWorkingCopyAnywhere) {
  const SVNAnswer answer = AskSVN(annasCopy_);
  const std::vector<std::vector<std::string>> orders = {
      {kBolt, "sub/axle", "car"},
      {"sub/axle", "car", kBolt},
      {kBolt, "sub/axle", kNut, "car", kBolt + std::string("2")}};
  for (const std::vector<std::string>& documents : orders) {
    const Json report = AnnaOn(documents, {"refresh"});
    EXPECT_THAT(RunsOf(CommandOf(report)), ElementsAre(Pair(Copy(), kTreeStatus)));
    ExpectWhatSVNSays(report, answer);
  }
}

TEST_F(SVNLayouts, MayTakeTheirDocumentsFromTwoWorkingCopies) {
  const fs::path second = folder_ / "second";
  repository_.Checkout(second);
  repository_.Lock(second / "other/part", "anna");
  const std::vector<std::string> documents = {"car", "../second/car",     "sub/axle", "../second/other/part",
                                              kNut,  "../second/sub/axle"};
  const Json report = AnnaOn(documents, {"refresh"});
  ExpectWhatSVNSays(report, AskSVN(annasCopy_).And(AskSVN(second)));
  EXPECT_THAT(RunsOf(CommandOf(report)),
              UnorderedElementsAre(Pair(Copy(), kTreeStatus), Pair(folder_.Host("second"), kTreeStatus)));
  EXPECT_THAT(AttributesByFile(report, folder_.Path()).at("second/other/part").at("Status"), "Edit");
}

TEST_F(SVNLayouts, MayHaveOneWorkingCopyWithinAnother) {
  const fs::path inner = annasCopy_ / "sub/inner";
  repository_.Checkout(inner);
  repository_.Lock(inner / "car", "anna");
  const Json report = AnnaOn({"sub/axle", "sub/wheel", "sub/inner/car", "sub/inner/sub/axle"}, {"refresh"});
  ExpectWhatSVNSays(report, AskSVN(annasCopy_ / "sub").And(AskSVN(inner)));
  EXPECT_THAT(RunsOf(CommandOf(report)), UnorderedElementsAre(Pair(Copy("\\sub"), kTreeStatus),
                                                              Pair(Copy("\\sub\\inner"), kTreeStatus)));
}

// The outer one still misses the folder that was its own.
TEST_F(SVNLayouts, MayHaveAnotherWorkingCopyInThePlaceOfAFolder) {
  const fs::path inner = annasCopy_ / "other";
  fs::remove_all(inner);
  repository_.Run({"checkout", repository_.URL() + "/other", inner.string()});
  repository_.Lock(inner / "part", "anna", "in the inner one");
  const Json report = AnnaOn({"car", "other/part"}, {"refresh"});
  const SVNAnswer outerAnswer = AskSVN(annasCopy_);
  EXPECT_TRUE(outerAnswer.Entries.contains((inner / "part").string()));
  ExpectWhatSVNSays(report, AskSVN(inner).And(outerAnswer));
  EXPECT_THAT(Statuses(report), ElementsAre(Pair("car", "ReadOnly"), Pair("other/part", "Edit")));
}

// It is none of the working copy around it, whatever the client of that says of its files.
TEST_F(SVNLayouts, MayHaveAFolderOfTheOtherSystemWithin) {
  WriteFile(annasCopy_ / "other/CVS/Repository", "other\n");
  WriteFile(annasCopy_ / "other/CVS/Root", "/nowhere\n");
  const Json report = AnnaOn({"sub/axle", "other/part", "other/below/part", "sub/wheel"}, {"refresh"});
  EXPECT_THAT(RunsOf(CommandOf(report)), ElementsAre(Pair(Copy("\\sub"), kTreeStatus)));
  EXPECT_THAT(Statuses(report), ElementsAre(Pair("other/below/part", "-"), Pair("other/part", "-"),
                                            Pair("sub/axle", "Locked"), Pair("sub/wheel", "ReadOnly")));
}

TEST_F(SVNLayouts, MayHaveAFolderWithTextEntriesWithin) {
  const fs::path texts = annasCopy_ / "texts/.svn/entries";
  WriteFile(texts, entries::Format(10) + entries::Folder("7") + entries::File(10, "part", "5", "carl"));
  const SVNAnswer answer = AskSVN(annasCopy_);
  const Json report = AnnaOn({"car", "texts/part", "sub/axle"}, {"refresh"});
  EXPECT_THAT(
      RunsOf(CommandOf(report)),
      UnorderedElementsAre(Pair(Copy(), kTreeStatus), Pair(Copy(), " status -v -u " + Sent("texts/part")),
                           Pair(Copy(), " status -v -u --xml " + Sent("texts/part"))));
  const auto attributes = AttributesByFile(report, annasCopy_);
  EXPECT_EQ(attributes.at("texts/part").at("Revision"), "5");
  EXPECT_EQ(attributes.at("sub/axle"),
            ExpectedAttributes(answer.Entries.at((annasCopy_ / "sub/axle").string()), true));
}

// An old client's working copy that has been given a database, too, stays an old one.
TEST_F(SVNLayouts, MayHaveTextEntriesBesideTheDatabase) {
  WriteFile(annasCopy_ / ".svn/entries",
            entries::Format(10) + entries::Folder("7") + entries::File(10, "car", "5", "carl"));
  const Json report = AnnaOn({"car"}, {"refresh", "edit"});
  for (std::size_t command : {0, 1}) {
    EXPECT_THAT(RunsOf(CommandOf(report, command)),
                Not(Contains(Pair(testing::_, HasSubstr("--non-interactive")))));
  }
  EXPECT_EQ(AttributesByFile(report, annasCopy_).at("car").at("Revision"), "5");
}

TEST_F(SVNLayouts, MayLieInNoWorkingCopyAtAll) {
  const Json report =
      AnnaOn({kBolt, kNut}, {"refresh", "edit", "delete " + (folder_ / "standard/bolt").string()}, 1);
  for (std::size_t command : {0, 1, 2}) EXPECT_THAT(RunsOf(CommandOf(report, command)), IsEmpty());
  EXPECT_TRUE(fs::exists(folder_ / "standard/bolt"));
}

}  // namespace
