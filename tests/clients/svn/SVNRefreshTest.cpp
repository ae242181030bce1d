#include "SVNStatus.h"
#include "SVNWorkingCopies.h"

namespace {

using testing::ElementsAre;
using testing::Pair;
using testing::SizeIs;

class SVNRefresh : public SVNWorkingCopies {
protected:
  // One file, beside the car.
  void CheckOutWheel() { CheckOut({{kCar, "car\n"}, {wheel_, "wheel\n"}}); }

  const std::string wheel_ = "Räder vorn/Rad links größe.CATPart";
};

TEST_F(SVNRefresh, GivesEveryFileOfATreeTheAttributesThatTheClientTells) {
  std::map<std::string, std::string> files = {{kCar, "car\n"}};
  for (const std::string folder : {"", "Räder vorn/", "Räder vorn/tief unten/", "a@b/", "Tür links/"}) {
    for (const char* name : {"Teil 1 ß.CATPart", "Teil@2.CATPart", "Teil 3.CATPart", "Teil 4.CATPart"}) {
      files[folder + name] = "part\n";
    }
  }
  CheckOut(files);
  repository_.Commit(bensCopy_ / "Räder vorn/tief unten/Teil 3.CATPart", "second\n");
  repository_.Commit(bensCopy_ / "Teil@2.CATPart", "third\n");
  ASSERT_EQ(anna_.Adapter("svn.exe", {"update", annasCopy_.string()}).Status, 0);
  // Newer in the repository only.
  repository_.Commit(bensCopy_ / "Teil 4.CATPart", "fourth\n");
  repository_.Lock(bensCopy_ / "Räder vorn/Teil 3.CATPart", "ben", "line 1\nline 2");
  repository_.Lock(bensCopy_ / "a@b/Teil@2.CATPart", "ben hur", "it is \"mine\"");
  repository_.Lock(annasCopy_ / "Räder vorn/tief unten/Teil 1 ß.CATPart", "anna", "\\ back");
  repository_.Lock(annasCopy_ / kCar, "anna");
  const std::string unknown = "Tür links/kein Teil.CATPart";
  WriteFile(annasCopy_ / unknown, "unknown\n");

  const Json report = Anna({"refresh"});
  ExpectWhatSVNSays(report, AskSVN(annasCopy_));
  const auto statuses = Statuses(report);
  ASSERT_THAT(statuses, SizeIs(files.size() + 1));
  std::map<std::string, int> counts;
  for (const auto& [file, status] : statuses) ++counts[status];
  EXPECT_EQ(counts, (std::map<std::string, int>{{"Edit", 2}, {"Locked", 2}, {"ReadOnly", 17}, {"-", 1}}));
  EXPECT_EQ(statuses.at(unknown), "-");
  const auto attributes = AttributesByFile(report, annasCopy_);
  EXPECT_EQ(attributes.at("Teil@2.CATPart").at("Revision"), "3");
  EXPECT_EQ(attributes.at("Teil 4.CATPart").at("Revision"), "1");
}

TEST_F(SVNRefresh, AsksOnceAboutTheWholeTree) {
  CheckOutWheel();
  EXPECT_THAT(RunsOf(CommandOf(Anna({"refresh"}))), ElementsAre(Pair(folder_.Host(annasCopy_), kTreeStatus)));
}

TEST_F(SVNRefresh, LeavesNoAttributesWithoutAClient) {
  CheckOutWheel();
  anna_.Set("PATH", folder_.Path().string());
  EXPECT_EQ(AttributesByFile(Anna({"refresh"}), annasCopy_).at(wheel_), nullptr);
}

}  // namespace
