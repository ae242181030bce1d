// Taking a file of a Subversion working copy for editing, and giving it back.

#include "svn/LockCommands.h"

#include <gtest/gtest.h>

#include "CATISpecObject.h"
#include "SVNStage.h"
#include "component/product/AlteredProduct.h"

namespace {

using namespace entries;
using zrk::svn::SVNLock;
using zrk::svn::SVNUnlock;

using Paths = std::vector<std::string>;
using Lists = std::vector<std::vector<std::string>>;

class SVNLockCommands : public SVNStage {
protected:
  SVNLockCommands() { Products.Add("car", "wc/car.CATProduct"); }

  static std::string Listed(const LockLines& lock = {}) {
    return File(10, "car.CATProduct", "9", "bert", lock);
  }
  CATBaseUnknown_var Car() const { return Products.At("car"); }

  const std::string Path = Folder.Host("wc/car.CATProduct");
  const LockLines OwnLock{kToken, "anna", "", ""};
};

TEST_F(SVNLockCommands, LockUpdatesThenLocksThenAsksForTheStatus) {
  WriteEntries("wc", Listed());
  EXPECT_EQ(SVNLock(Context(), Car()), S_OK);
  EXPECT_EQ(Arguments(), (Lists{{"update", Path}, {"lock", Path}, {"status", "-v", "-u", Path}}));
}

TEST_F(SVNLockCommands, UnlockUnlocksAndThenAsksForTheStatus) {
  WriteEntries("wc", Listed());
  EXPECT_EQ(SVNUnlock(Context(), Car()), S_OK);
  EXPECT_EQ(Arguments(), (Lists{{"unlock", Path}, {"status", "-v", "-u", Path}}));
}

TEST_F(SVNLockCommands, AllRunSVNInTheWorkingFolder) {
  Products.Add("wheel", "wc/sub/wheel.CATPart");
  SVNLock(Context(), Products.At("wheel"));
  SVNUnlock(Context(), Products.At("wheel"));
  ASSERT_EQ(Client.Runs().size(), 5U);
  for (const ClientRun& run : Client.Runs()) {
    EXPECT_EQ(run.Program, "svn.exe");
    EXPECT_EQ(run.Folder, Folder.Host("wc"));
  }
}

TEST_F(SVNLockCommands, APathWithBlanksReachesTheClientWhole) {
  Products.Add("wheel", "wc/front  axle/wheel left.CATPart");
  const std::string path = Folder.Host("wc/front  axle/wheel left.CATPart");
  SVNLock(Context(), Products.At("wheel"));
  EXPECT_EQ(Arguments(), (Lists{{"update", path}, {"lock", path}, {"status", "-v", "-u", path}}));
}

TEST_F(SVNLockCommands, AfterALockTheProductIsInEditAndTheCommentNamesTheOwner) {
  WriteEntries("wc", Listed());
  Client.When("lock " + Path)
      .Store(".svn/entries", Format(10) + Listed(OwnLock))
      .Out("'car.CATProduct' locked by user 'anna'.\r\n");
  Client.When("status").Out(UnlockedReport(Path));
  EXPECT_EQ(SVNLock(Context(), Car()), S_OK);
  EXPECT_EQ(ReadStatusAttributes(Car()), (StatusAttributes{"9", "Edit", "", "anna\n"}));
  EXPECT_EQ(Redrawn.Paths(), Paths{"car"});
}

TEST_F(SVNLockCommands, TheRevisionIsThatAfterTheUpdate) {
  WriteEntries("wc", Listed());
  Client.When("update").Store(".svn/entries", Format(10) + File(10, "car.CATProduct", "14", "carl"));
  SVNLock(Context(), Car());
  EXPECT_EQ(ReadStatusAttributes(Car())->Revision, "14");
}

TEST_F(SVNLockCommands, TheLockIsTriedAlsoWhenTheUpdateFails) {
  WriteEntries("wc", Listed());
  Client.When("update").Error("svn: E170013: Unable to connect to a repository\r\n").Exit(1);
  EXPECT_EQ(SVNLock(Context(), Car()), S_OK);
  EXPECT_EQ(Arguments().at(1), (std::vector<std::string>{"lock", Path}));
}

TEST_F(SVNLockCommands, ALockThatIsHeldElsewhereShowsLockedAndIsNoFailure) {
  WriteEntries("wc", Listed());
  Client.When("lock " + Path)
      .Error("svn: warning: W160035: Path '/car.CATProduct' is already locked by user 'bert'\r\n")
      .Exit(1);
  Client.When("status").Out(ForeignLockReport(Path));
  EXPECT_EQ(SVNLock(Context(), Car()), S_OK);
  EXPECT_EQ(ReadStatusAttributes(Car()), (StatusAttributes{"9", "Locked", "", "\n"}));
}

TEST_F(SVNLockCommands, AfterAnUnlockTheProductIsReadOnly) {
  WriteEntries("wc", Listed(OwnLock));
  WriteStatusAttributes(Car(), {"9", "Edit", "", "anna\n"});
  Client.When("unlock").Store(".svn/entries", Format(10) + Listed());
  Client.When("status").Out(UnlockedReport(Path));
  EXPECT_EQ(SVNUnlock(Context(), Car()), S_OK);
  EXPECT_EQ(ReadStatusAttributes(Car()), (StatusAttributes{"9", "ReadOnly", "", "\n"}));
  EXPECT_EQ(Redrawn.Paths(), Paths{"car"});
}

TEST_F(SVNLockCommands, AnUnlockThatFailsLeavesTheProductInEdit) {
  WriteEntries("wc", Listed(OwnLock));
  Client.When("unlock").Error("svn: E170013: Unable to connect to a repository\r\n").Exit(1);
  EXPECT_EQ(SVNUnlock(Context(), Car()), S_OK);
  EXPECT_EQ(ReadStatusAttributes(Car()), (StatusAttributes{"9", "Edit", "", "anna\n"}));
}

TEST_F(SVNLockCommands, SucceedAlsoWhenTheClientCannotBeStarted) {
  SVNExePath = "";
  WriteEntries("wc", Listed());
  EXPECT_EQ(SVNLock(Context(), Car()), S_OK);
  EXPECT_EQ(SVNUnlock(Context(), Car()), S_OK);
  EXPECT_EQ(ReadStatusAttributes(Car())->Status, "ReadOnly");
}

TEST_F(SVNLockCommands, OfAnInstanceWorkOnTheDocumentOfItsReferenceAndShowOnTheInstance) {
  Products.Add("wheel", "wc/wheel.CATPart").Place("car", "wheel.1", "wheel");
  WriteEntries("wc", File(10, "wheel.CATPart", "5", "bert", OwnLock));
  EXPECT_EQ(SVNLock(Context(), Products.At("car/wheel.1")), S_OK);
  EXPECT_EQ(Arguments().at(1), (std::vector<std::string>{"lock", Folder.Host("wc/wheel.CATPart")}));
  EXPECT_EQ(ReadStatusAttributes(Products.At("car/wheel.1"))->Status, "Edit");
  EXPECT_EQ(ReadStatusAttributes(Products.At("wheel")), std::nullopt);
}

TEST_F(SVNLockCommands, LeaveTheChildrenAlone) {
  Products.Add("wheel", "wc/wheel.CATPart").Place("car", "wheel.1", "wheel");
  SVNLock(Context(), Car());
  SVNUnlock(Context(), Car());
  EXPECT_EQ(Redrawn.Paths(), (Paths{"car", "car"}));
}

TEST_F(SVNLockCommands, OfAProductThatIsNotInTheFeatureTreeDoNotAskForTheStatus) {
  WriteEntries("wc", Listed());
  const auto hidden = CATBaseUnknown_var::Adopt(new AlteredProduct(Car(), CATISpecObject::ClassId()));
  EXPECT_EQ(SVNLock(Context(), hidden), S_OK);
  EXPECT_EQ(SVNUnlock(Context(), hidden), S_OK);
  EXPECT_EQ(Arguments(), (Lists{{"update", Path}, {"lock", Path}, {"unlock", Path}}));
  EXPECT_EQ(Redrawn.Paths(), Paths{});
}

TEST_F(SVNLockCommands, DoNotLookWhetherTheWorkingCopyIsSubversions) {
  WriteEntries("wc", Listed());
  zrk::svn::SVNContext context = Context();
  context.Tools.IsSVN = false;
  EXPECT_EQ(SVNLock(context, Car()), S_OK);
  EXPECT_EQ(SVNUnlock(context, Car()), S_OK);
  EXPECT_EQ(Redrawn.Paths(), (Paths{"car", "car"}));
}

TEST_F(SVNLockCommands, TakeADocumentThatWasNeverStoredForAFileWithoutAName) {
  Products.Add({.Name = "new", .Document = ""});
  EXPECT_EQ(SVNLock(Context(), Products.At("new")), S_OK);
  EXPECT_EQ(SVNUnlock(Context(), Products.At("new")), S_OK);
  EXPECT_EQ(Arguments(), (Lists{{"update", ""},
                                {"lock", ""},
                                {"status", "-v", "-u", ""},
                                {"unlock", ""},
                                {"status", "-v", "-u", ""}}));
}

// Products whose document cannot be reached, each for another reason.
class SVNLockCommandsWithoutDocument : public SVNLockCommands {
protected:
  SVNLockCommandsWithoutDocument() {
    Products.AddNotLinkable("group").AddWithoutDocument("plain");
    Products.Place("car", "gone.1", std::nullopt)
        .Place("car", "group.1", "group")
        .Place("car", "plain.1", "plain");
  }

  const std::vector<std::string> All{"group", "plain", "car/gone.1", "car/group.1", "car/plain.1"};
};

TEST_F(SVNLockCommandsWithoutDocument, FailAndRunNothing) {
  for (const std::string& path : All) {
    EXPECT_EQ(SVNLock(Context(), Products.At(path)), E_FAIL) << path;
    EXPECT_EQ(SVNUnlock(Context(), Products.At(path)), E_FAIL) << path;
  }
  EXPECT_TRUE(Client.Runs().empty());
}

TEST_F(SVNLockCommandsWithoutDocument, LeaveTheProductAsItIs) {
  for (const std::string& path : All) {
    WriteStatusAttributes(Products.At(path), kOld);
    SVNLock(Context(), Products.At(path));
    SVNUnlock(Context(), Products.At(path));
    EXPECT_EQ(ReadStatusAttributes(Products.At(path)), kOld) << path;
  }
  EXPECT_EQ(Redrawn.Paths(), Paths{});
}

TEST_F(SVNLockCommandsWithoutDocument, OfAnObjectThatIsNoProductFailAndRunNothing) {
  EXPECT_EQ(SVNLock(Context(), AttributeClass), E_FAIL);
  EXPECT_EQ(SVNUnlock(Context(), AttributeClass), E_FAIL);
  EXPECT_EQ(SVNLock(Context(), nullptr), E_FAIL);
  EXPECT_TRUE(Client.Runs().empty());
}

}  // namespace
