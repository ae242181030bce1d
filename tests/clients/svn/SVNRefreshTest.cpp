#include "SVNAnswers.h"
#include "SVNWorkingCopies.h"

namespace {

using testing::ElementsAre;
using testing::SizeIs;

const std::string car = "Auto größe.CATProduct";

Json AttributesFromClient(const SVNAnswer& answer) {
  const char* unlocked = answer.LockOwner.empty() ? "ReadOnly" : "Locked";
  const std::string comment = answer.LockOwner.empty() ? ""
                                                       : "Locked by: \n" + answer.LockOwner +
                                                             "\n-------------\n" + answer.LockComment;
  return {{"Revision", answer.Revision},
          {"Status", answer.LockedHere ? "Edit" : unlocked},
          {"Release", ""},
          {"Comment", comment}};
}

class SVNRefresh : public SVNWorkingCopies {
protected:
  // One file, beside the car.
  void CheckOutWheel() { CheckOut({{car, "car\n"}, {wheel_, "wheel\n"}}); }

  const std::string wheel_ = "Räder vorn/Rad links größe.CATPart";
};

TEST_F(SVNRefresh, GivesEveryFileOfATreeTheAttributesThatTheClientTells) {
  std::map<std::string, std::string> files = {{car, "car\n"}};
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
  repository_.Lock(annasCopy_ / car, "anna");
  const std::string unknown = "Tür links/kein Teil.CATPart";
  WriteFile(annasCopy_ / unknown, "unknown\n");

  const Json report = Anna({"refresh"});
  const auto attributes = AttributesByFile(report, annasCopy_);
  const auto answers = AskSVN(repository_, annasCopy_);
  ASSERT_THAT(attributes, SizeIs(files.size() + 1));
  std::map<std::string, int> states;
  for (const auto& [file, contents] : files) {
    const Json expected = AttributesFromClient(answers.at(file));
    EXPECT_EQ(attributes.at(file), expected) << file;
    ++states[expected.at("Status")];
  }
  EXPECT_EQ(states, (std::map<std::string, int>{{"Edit", 2}, {"Locked", 2}, {"ReadOnly", 17}}));
  EXPECT_EQ(attributes.at("Teil@2.CATPart").at("Revision"), "3");
  EXPECT_EQ(attributes.at("Teil 4.CATPart").at("Revision"), "1");
  EXPECT_EQ(attributes.at(unknown), nullptr);
}

TEST_F(SVNRefresh, AsksOnceAboutTheWholeTree) {
  CheckOutWheel();
  const std::vector<Json> launches = EventsOf(CommandOf(Anna({"refresh"})), "launch");
  EXPECT_THAT(TextsOf(launches, "commandLine"), ElementsAre(kTreeStatus));
  EXPECT_THAT(TextsOf(launches, "folder"), ElementsAre(folder_.Host(annasCopy_)));
}

TEST_F(SVNRefresh, LeavesNoAttributesWithoutAClient) {
  CheckOutWheel();
  anna_.Set("PATH", folder_.Path().string());
  EXPECT_EQ(AttributesByFile(Anna({"refresh"}), annasCopy_).at(wheel_), nullptr);
}

}  // namespace
