#include "SVNAnswers.h"
#include "SVNWorkingCopies.h"

namespace {

using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using testing::SizeIs;

const std::string car = "Auto größe.CATProduct";

Json AttributesFromClient(const SVNAnswer& answer) {
  const char* unlocked = answer.LockOwner.empty() ? "ReadOnly" : "Locked";
  return {
      {"Revision", answer.Revision},
      {"Status", answer.LockedHere ? "Edit" : unlocked},
      {"Release", ""},
      {"Comment", answer.LockOwner.empty() ? "" : "Locked by: \n" + answer.LockOwner + "\n-------------\n"}};
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
  TellEntries(anna_, annasCopy_);

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

TEST_F(SVNRefresh, AsksTwiceAboutEveryFile) {
  CheckOutWheel();
  const std::vector<Json> launches = EventsOf(CommandOf(Anna({"refresh"})), "launch");
  EXPECT_THAT(TextsOf(launches, "commandLine"),
              ElementsAre(" status -v -u " + Sent(car), " status -v -u --xml " + Sent(car),
                          " status -v -u " + Sent(wheel_), " status -v -u --xml " + Sent(wheel_)));
  // The last document that was examined decides.
  EXPECT_THAT(TextsOf(launches, "folder"), Each(folder_.Host(annasCopy_ / "Räder vorn")));
}

TEST_F(SVNRefresh, RestsOnReportsWithTheMarkOfAForeignLockAndItsOwner) {
  CheckOutWheel();
  const std::string sent = folder_.Host(annasCopy_ / wheel_);
  EXPECT_THAT(anna_.Adapter("svn.exe", {"status", "-v", "-u", sent}).Output, Not(HasSubstr(" O ")));
  repository_.Lock(bensCopy_ / wheel_, "ben");
  EXPECT_THAT(anna_.Adapter("svn.exe", {"status", "-v", "-u", sent}).Output, HasSubstr(" O "));
  EXPECT_THAT(anna_.Adapter("svn.exe", {"status", "-v", "-u", "--xml", sent}).Output,
              HasSubstr("<owner>ben</owner>"));
}

TEST_F(SVNRefresh, NamesTheFirstOwnerOfALockThatWasTaken) {
  CheckOutWheel();
  Anna({"edit \"" + car + "/" + wheel_ + "\""});
  repository_.Run({"lock", "--force", (bensCopy_ / wheel_).string()}, "ben");
  // The report names the owner that this working copy knows of, and then the one of the repository.
  const Json attributes = AttributesByFile(Anna({"refresh"}), annasCopy_).at(wheel_);
  EXPECT_EQ(attributes.at("Status"), "Edit");
  EXPECT_EQ(attributes.at("Comment"), "Locked by: \nanna\n-------------\n");
}

TEST_F(SVNRefresh, TellsWhatTheEntriesHoldWithoutAClient) {
  CheckOutWheel();
  repository_.Lock(bensCopy_ / wheel_, "ben");
  anna_.Set("PATH", folder_.Path().string());
  const Json attributes = AttributesByFile(Anna({"refresh"}), annasCopy_).at(wheel_);
  EXPECT_EQ(attributes, Json({{"Revision", "1"}, {"Status", "ReadOnly"}, {"Release", ""}, {"Comment", ""}}));
}

}  // namespace
