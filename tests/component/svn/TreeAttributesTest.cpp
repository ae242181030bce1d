// What a tree refresh writes onto one product.

#include <gtest/gtest.h>

#include "CATICkeParm.h"
#include "SVNStage.h"
#include "attributes/AttributeDictionary.h"
#include "svn/StatusReaders.h"

namespace {

using namespace entries;

class SVNTreeAttributes : public SVNStage {
protected:
  SVNTreeAttributes() { Products.Add("car", "wc/car.CATProduct"); }

  void List(const LockLines& lock = {}) const {
    WriteEntries("wc", File(10, "car.CATProduct", "9", "bert", lock));
  }
  void Report(const std::string& text, const std::string& xml = "") {
    Client.When("--xml").Out(xml);
    Client.When("status").Out(text);
  }
  std::optional<StatusAttributes> Refreshed() {
    zrk::svn::SVNTimes times;
    EXPECT_EQ(zrk::svn::RefreshSVNStatusTree(Context(), Products.At("car"), times), 0);
    return ReadStatusAttributes(Products.At("car"));
  }

  const std::string Path = Folder.Host("wc/car.CATProduct");
  const LockLines OwnLock{kToken, "anna", "", ""};
};

TEST_F(SVNTreeAttributes, AFileThatNobodyLocksIsReadOnly) {
  List();
  Report(UnlockedReport(Path), "<status/>");
  EXPECT_EQ(Refreshed(), (StatusAttributes{"9", "ReadOnly", "", ""}));
}

TEST_F(SVNTreeAttributes, AFileLockedHereIsInEditAndTheCommentNamesItsOwner) {
  List(OwnLock);
  Report(UnlockedReport(Path), "<status/>");
  EXPECT_EQ(Refreshed(), (StatusAttributes{"9", "Edit", "", "Locked by: \nanna\n-------------\n"}));
}

TEST_F(SVNTreeAttributes, AFileLockedElsewhereIsLockedAndTheCommentNamesTheOwnerOfTheXMLReport) {
  List();
  Report(ForeignLockReport(Path), XMLReport("bert b."));
  EXPECT_EQ(Refreshed(), (StatusAttributes{"9", "Locked", "", "Locked by: \nbert b.\n-------------\n"}));
}

TEST_F(SVNTreeAttributes, AnOwnerOfTheXMLReportIsNamedAlsoWhenNoLockShows) {
  List();
  Report(UnlockedReport(Path), XMLReport("bert"));
  EXPECT_EQ(Refreshed(), (StatusAttributes{"9", "ReadOnly", "", "Locked by: \nbert\n-------------\n"}));
}

TEST_F(SVNTreeAttributes, AnOwnerMayBeOneLetter) {
  List();
  Report(ForeignLockReport(Path), XMLReport("b"));
  EXPECT_EQ(Refreshed()->Comment, "Locked by: \nb\n-------------\n");
}

TEST_F(SVNTreeAttributes, AFileLockedElsewhereByNobodyKnownHasNoComment) {
  List();
  Report(ForeignLockReport(Path), "<status/>");
  EXPECT_EQ(Refreshed(), (StatusAttributes{"9", "Locked", "", ""}));
}

TEST_F(SVNTreeAttributes, TheMarkInTheXMLReportDoesNotCount) {
  List();
  Report(UnlockedReport(Path), "<status> O </status>");
  EXPECT_EQ(Refreshed()->Status, "ReadOnly");
}

TEST_F(SVNTreeAttributes, AnOwnerInTheTextReportDoesNotCount) {
  List();
  Report(XMLReport("bert"));
  EXPECT_EQ(Refreshed(), (StatusAttributes{"9", "ReadOnly", "", ""}));
}

TEST_F(SVNTreeAttributes, TheOwnerOfTheXMLReportReplacesThatOfTheEntriesFile) {
  List(OwnLock);
  Report("", XMLReport("bert"));
  EXPECT_EQ(Refreshed(), (StatusAttributes{"9", "Edit", "", "Locked by: \nbert\n-------------\n"}));
}

TEST_F(SVNTreeAttributes, AnEmptyOwnerOfTheXMLReportReplacesThatOfTheEntriesFileToo) {
  List(OwnLock);
  Report("", XMLReport(""));
  EXPECT_EQ(Refreshed(), (StatusAttributes{"9", "Edit", "", ""}));
}

TEST_F(SVNTreeAttributes, OnlyTheFirstOwnerOfTheXMLReportIsNamed) {
  List();
  Report(ForeignLockReport(Path), "<status><owner>bert</owner><owner>carl</owner></status>");
  EXPECT_EQ(Refreshed()->Comment, "Locked by: \nbert\n-------------\n");
}

TEST_F(SVNTreeAttributes, TheOwnerOfTheEntriesFileStaysWhenTheXMLReportIsCutOff) {
  List(OwnLock);
  const std::string report = XMLReport("bert");
  Report("", report.substr(0, report.size() / 2));
  EXPECT_EQ(Refreshed()->Comment, "Locked by: \nanna\n-------------\n");
}

TEST_F(SVNTreeAttributes, TheOwnerOfTheEntriesFileStaysWhenTheClientWarnsBesidesTheXMLReport) {
  List(OwnLock);
  Client.When("--xml").Error("svn: warning: cannot set LC_CTYPE locale\r\n").Out(XMLReport("bert"));
  EXPECT_EQ(Refreshed()->Comment, "Locked by: \nanna\n-------------\n");
}

TEST_F(SVNTreeAttributes, SilentReportsLeaveWhatTheEntriesFileTells) {
  List(OwnLock);
  EXPECT_EQ(Refreshed(), (StatusAttributes{"9", "Edit", "", "Locked by: \nanna\n-------------\n"}));
}

TEST_F(SVNTreeAttributes, AClientThatCrashesLeavesWhatTheEntriesFileTells) {
  List();
  Client.When("status").Out("     O  ").Crash();
  EXPECT_EQ(Refreshed(), (StatusAttributes{"9", "Locked", "", ""}));
}

TEST_F(SVNTreeAttributes, AFileWithoutARevisionHasAnEmptyOne) {
  WriteEntries("wc", AddedFile("car.CATProduct"));
  EXPECT_EQ(Refreshed(), (StatusAttributes{"", "ReadOnly", "", ""}));
}

TEST_F(SVNTreeAttributes, AFileThatIsNotListedHasNoneWhateverTheReportsSay) {
  WriteEntries("wc", File(10, "other.CATPart", "9", "bert"));
  Report(ForeignLockReport(Path), XMLReport("bert"));
  EXPECT_EQ(Refreshed(), std::nullopt);
}

TEST_F(SVNTreeAttributes, AParameterThatIsMissingIsSkippedAndTheOthersAreWritten) {
  const std::vector<std::string> all{"Revision", "Status", "Release", "Comment"};
  const StatusAttributes written{"9", "Edit", "", "Locked by: \nanna\n-------------\n"};
  List(OwnLock);
  for (const std::string& missing : all) {
    std::vector<std::string> parameters;
    for (const std::string& name : all) {
      if (name != missing) parameters.push_back(name);
    }
    standin::InstallAttributeDictionary({{"ZRKCVS", parameters}});
    AttributeClass = StatusClass();
    StatusAttributes expected = written;
    if (missing == "Revision") expected.Revision = "";
    if (missing == "Status") expected.Status = "";
    if (missing == "Comment") expected.Comment = "";
    EXPECT_EQ(Refreshed(), expected) << missing;
  }
}

TEST_F(SVNTreeAttributes, OtherParametersAreNotTouched) {
  standin::InstallAttributeDictionary({{"ZRKCVS", {"Owner", "Status", "Revision", "Release", "Comment"}}});
  AttributeClass = StatusClass();
  const ZRKIAttExtendable_var carrier = Products.At("car");
  carrier->AddInstance(AttributeClass, nullptr);
  const ZRKIAttInstance_var instance = carrier->FindInstance(AttributeClass);
  const CATICkeParm_var owner = instance->GetParameter("Owner");
  owner->Valuate("nobody");
  List(OwnLock);
  EXPECT_EQ(Refreshed()->Status, "Edit");
  EXPECT_EQ(owner->AsText(), "nobody");
}

}  // namespace
