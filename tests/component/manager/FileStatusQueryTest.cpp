#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "ZRKICVSManager.h"
#include "attributes/AttributeDictionary.h"
#include "component/manager/AffirmedReference.h"
#include "component/manager/CVSStage.h"
#include "component/product/ProductEvents.h"
#include "support/DebugMessages.h"
#include "support/DialogRecorder.h"
#include "support/Files.h"
#include "support/HostText.h"

using testing::ElementsAre;

namespace {

// Through the interface, as the host calls it.
class FileStatusQuery : public testing::Test, protected CVSStage {
protected:
  FileStatusQuery() {
    Products.Add("car", "proj/car model").Add("axle", "proj/axle").Place("car", "a", "axle");
  }

  ZRKCVSStatus Asked(const CATBaseUnknown_var& product, const std::string& managerOf = "car") {
    ZRKCVSStatus record;
    record.Status = "as it was";
    EXPECT_EQ(ZRKICVSManager_var(Products.At(managerOf))->GetFileStatus(product, record), S_OK);
    return record;
  }

  void ExpectNothingRun(const CATBaseUnknown_var& product) {
    EXPECT_EQ(Text(Asked(product).Status), "as it was");
    EXPECT_TRUE(Client.Runs().empty());
  }
};

}  // namespace

TEST_F(FileStatusQuery, FillsTheRecordFromTheReport) {
  Client.When("status -v").Out(zrk::sample::StatusBlock("proj/car model", "1.5", "Needs Patch"));
  const ZRKCVSStatus record = Asked(Products.At("car"));
  EXPECT_EQ(Text(record.File), "carmodel\t");
  EXPECT_EQ(Text(record.Status), "Needs Patch\r");
  EXPECT_EQ(Text(record.WorkingRevision), "1.5");
  EXPECT_EQ(Text(record.RepositoryRevision), "1.5/cvs/root/proj/car model,v");
  EXPECT_EQ(Text(record.ExistingTags), "release-2                (revision: 1.4)");
}

TEST_F(FileStatusQuery, RunsTheClientOnceInTheWorkingFolder) {
  Asked(Products.At("car"));
  ASSERT_EQ(Client.Runs().size(), 1u);
  EXPECT_EQ(Client.Runs()[0].Program, "cvs.exe");
  EXPECT_EQ(Client.Runs()[0].Folder, Folder.Host());
  EXPECT_EQ(Client.Runs()[0].Arguments, Arguments({"status", "-v", "proj\\car model"}));
}

TEST_F(FileStatusQuery, IsAboutTheProductGivenNotTheManagersOwn) {
  Asked(Products.At("axle"), "car");
  ASSERT_EQ(Client.Runs().size(), 1u);
  EXPECT_EQ(Client.Runs()[0].Arguments, Arguments({"status", "-v", "proj\\axle"}));
}

TEST_F(FileStatusQuery, IsAboutAReferenceAlsoWhenItsTestAnswersWithAPositiveCode) {
  Asked(AffirmedReference::Of(Products.At("axle")));
  ASSERT_EQ(Client.Runs().size(), 1u);
  EXPECT_EQ(Client.Runs()[0].Arguments, Arguments({"status", "-v", "proj\\axle"}));
}

TEST_F(FileStatusQuery, AsksForAFileOutsideTheWorkingFolderByItsFullPath) {
  Products.Add({.Name = "far", .Document = "\\far\\away"});
  Asked(Products.At("far"));
  EXPECT_EQ(Client.Runs().at(0).Arguments, Arguments({"status", "-v", "\\far\\away"}));
}

TEST_F(FileStatusQuery, LeavesTheRecordAsItWasWhenTheClientSaysNothing) {
  EXPECT_EQ(Text(Asked(Products.At("car")).Status), "as it was");
}

TEST_F(FileStatusQuery, SkipsTagLinesOfOneCharacterAndTakesTheFirstBehind) {
  Client.When("status -v").Out("Existing Tags:\r\n\r\n\tone\r\n\ttwo\r\n");
  EXPECT_EQ(Text(Asked(Products.At("car")).ExistingTags), "one");
}

TEST_F(FileStatusQuery, AppendsTheTagToWhatIsKnown) {
  Client.When("status -v").Out("Existing Tags:\r\n\tone\r\n");
  ZRKECVSManager manager(Product("car"));
  ZRKCVSStatus record;
  manager.GetFileStatus(Products.At("car"), record);
  manager.GetFileStatus(Products.At("car"), record);
  EXPECT_EQ(Text(record.ExistingTags), "oneone");
}

TEST_F(FileStatusQuery, OfAnInstanceRunsNothing) {
  ExpectNothingRun(Products.At("car/a"));
}

TEST_F(FileStatusQuery, OfAnInstanceWithoutItsReferenceRunsNothing) {
  Products.Place("car", "lost", std::nullopt);
  ExpectNothingRun(Products.At("car/lost"));
}

TEST_F(FileStatusQuery, OfAProductWithoutAStoredDocumentRunsNothing) {
  Products.AddWithoutDocument("empty").AddNotLinkable("bare").Add({.Name = "new", .Document = ""});
  ExpectNothingRun(Products.At("empty"));
  ExpectNothingRun(Products.At("bare"));
  ExpectNothingRun(Products.At("new"));
}

TEST_F(FileStatusQuery, OfNothingRunsNothing) {
  ExpectNothingRun(nullptr);
}

TEST_F(FileStatusQuery, NeitherFilesNorWritesNorRedraws) {
  Client.When("status -v").Out(zrk::sample::StatusBlock("proj/car model", "1.5"));
  ZRKECVSManager manager(Product("car"));
  const RedrawnProducts redrawn;
  ZRKCVSStatus record;
  manager.GetFileStatus(Products.At("car"), record);
  EXPECT_TRUE(manager.StatusBlockTable.empty());
  EXPECT_EQ(ReadStatusAttributes(Products.At("car")), std::nullopt);
  EXPECT_TRUE(redrawn.Paths().empty());
}

TEST_F(FileStatusQuery, NeedsNoAttributeClass) {
  standin::RemoveAttributeDictionary();
  Asked(Products.At("car"));
  EXPECT_EQ(Client.Runs().size(), 1u);
}

TEST_F(FileStatusQuery, OfAManagerWithoutAWorkingCopyCannotStartTheClient) {
  Products.AddWithoutDocument("empty");
  const DebugMessages messages;
  EXPECT_EQ(Text(Asked(Products.At("car"), "empty").Status), "as it was");
  EXPECT_TRUE(Client.Runs().empty());
  EXPECT_THAT(messages.All(), ElementsAre(L"CreateProcess failed\n", L"Create process failed with"));
}

TEST_F(FileStatusQuery, InASubversionWorkingCopyCannotStartTheClient) {
  WriteFile(Folder / "svn/.svn/entries", "10\n");
  Products.Add("part", "svn/part");
  const DebugMessages messages;
  EXPECT_EQ(Text(Asked(Products.At("part"), "part").Status), "as it was");
  EXPECT_TRUE(Client.Runs().empty());
  EXPECT_THAT(messages.All(), ElementsAre(L"CreateProcess failed\n", L"Create process failed with"));
}

TEST(FileStatusQueryWithoutCVS, DoesNothingAndShowsNoNotice) {
  CVSStage stage(InstalledClients::None);
  stage.Products.Add("car", "proj/car");
  const DialogRecorder dialogs;
  const DebugMessages messages;
  ZRKCVSStatus record;
  record.Status = "as it was";
  EXPECT_EQ(ZRKICVSManager_var(stage.Products.At("car"))->GetFileStatus(stage.Products.At("car"), record),
            S_OK);
  EXPECT_EQ(Text(record.Status), "as it was");
  EXPECT_TRUE(dialogs.Requests().empty());
  EXPECT_TRUE(messages.All().empty());
}
