#include <gtest/gtest.h>

#include "attributes/AttributeDictionary.h"
#include "component/manager/AffirmedReference.h"
#include "component/manager/CVSStage.h"
#include "component/product/NoProduct.h"
#include "support/DebugMessages.h"
#include "support/DialogRecorder.h"
#include "support/Files.h"
#include "support/HostText.h"

namespace {

class Construction : public testing::Test, protected CVSStage {};

}  // namespace

TEST_F(Construction, KnowsTheCVSWorkingCopyOfItsProduct) {
  Products.Add("car", "proj/car");
  const ZRKECVSManager manager(Product("car"));
  EXPECT_EQ(Text(manager.SandboxRoot), SandboxRoot());
  EXPECT_EQ(Text(manager.CVSRoot), zrk::sample::kCVSRoot);
  EXPECT_FALSE(manager.IsSVN);
  EXPECT_EQ(Text(manager.SVNWorkingFolder), "");
}

TEST_F(Construction, KnowsTheSubversionFolderOfItsProduct) {
  WriteFile(Folder / "svn/.svn/entries", "10\n");
  Products.Add("car", "svn/car");
  const ZRKECVSManager manager(Product("car"));
  EXPECT_TRUE(manager.IsSVN);
  EXPECT_EQ(Text(manager.SVNWorkingFolder), Folder.Host() + "\\svn");
  EXPECT_EQ(Text(manager.SandboxRoot), "");
}

TEST_F(Construction, KnowsNoWorkingCopyWithoutADocument) {
  Products.AddWithoutDocument("empty").AddNotLinkable("bare").Add("car", "proj/car");
  Products.Place("car", "lost", std::nullopt);
  for (const char* const path : {"empty", "bare", "car/lost"}) {
    const ZRKECVSManager manager(Product(path));
    EXPECT_EQ(Text(manager.SandboxRoot), "") << path;
    EXPECT_EQ(Text(manager.CVSRoot), "") << path;
    EXPECT_EQ(Text(manager.SVNWorkingFolder), "") << path;
    EXPECT_FALSE(manager.IsSVN) << path;
  }
}

TEST_F(Construction, KnowsTheWorkingCopyOfAReferenceWhoseTestAnswersWithAPositiveCode) {
  Products.Add("car", "proj/car");
  const CATBaseUnknown_var car = AffirmedReference::Of(Products.At("car"));
  EXPECT_EQ(Text(ZRKECVSManager(*car).SandboxRoot), SandboxRoot());
}

TEST_F(Construction, OfWhatIsNoProductKnowsNoWorkingCopy) {
  NoProduct object;
  const ZRKECVSManager manager(object);
  EXPECT_EQ(Text(manager.SandboxRoot), "");
  EXPECT_FALSE(manager.IsSVN);
  EXPECT_EQ(Text(manager.CVSExePath), Client.HostPath("cvs.exe"));
}

TEST_F(Construction, HasEmptyTablesAndCounters) {
  Products.Add("car", "proj/car");
  const ZRKECVSManager manager(Product("car"));
  EXPECT_TRUE(manager.StatusBlockTable.empty());
  EXPECT_TRUE(manager.EditTable.empty());
  EXPECT_EQ(manager.CommTime, 0);
  EXPECT_EQ(manager.SpareCounter, 0);
  EXPECT_EQ(manager.SVNTimings.StatusCheck, 0.0);
  EXPECT_EQ(manager.SVNTimings.XMLParsing, 0.0);
  EXPECT_EQ(manager.SVNTimings.Attributing, 0.0);
}

TEST_F(Construction, KeepsTheStandardOutputOfTheProcess) {
  Products.Add("car", "proj/car");
  EXPECT_EQ(ZRKECVSManager(Product("car")).StandardOutput, GetStdHandle(STD_OUTPUT_HANDLE));
}

TEST_F(Construction, LeavesTheStandardOutputOpenWhenItEnds) {
  HANDLE read = nullptr;
  HANDLE output = nullptr;
  ASSERT_TRUE(CreatePipe(&read, &output, nullptr, 0));
  Products.Add("car", "proj/car");
  {
    ZRKECVSManager manager(Product("car"));
    manager.StandardOutput = output;
  }
  EXPECT_TRUE(CloseHandle(output));
  CloseHandle(read);
}

TEST_F(Construction, KnowsTheStatusClass) {
  Products.Add("car", "proj/car");
  const ZRKECVSManager manager(Product("car"));
  ASSERT_TRUE(manager.AttributeClass);
  EXPECT_EQ(Text(manager.AttributeClass->GetPackageName()), "ZRKCVS");
}

TEST_F(Construction, DoesWithoutTheStatusClass) {
  Products.Add("car", "proj/car");
  standin::InstallAttributeDictionary({{"OTHER", {"Status"}}});
  EXPECT_FALSE(ZRKECVSManager(Product("car")).AttributeClass);
  standin::RemoveAttributeDictionary();
  const ZRKECVSManager manager(Product("car"));
  EXPECT_FALSE(manager.AttributeClass);
  EXPECT_EQ(Text(manager.SandboxRoot), SandboxRoot());
  EXPECT_EQ(Text(manager.CVSExePath), Client.HostPath("cvs.exe"));
}

TEST_F(Construction, KnowsBothClients) {
  Products.Add("car", "proj/car");
  const ZRKECVSManager manager(Product("car"));
  EXPECT_EQ(Text(manager.CVSExePath), Client.HostPath("cvs.exe"));
  EXPECT_EQ(Text(manager.SVNExePath), Client.HostPath("svn.exe"));
}

TEST_F(Construction, RunsNothingAndTellsNothing) {
  Products.Add("car", "proj/car");
  const DebugMessages messages;
  const DialogRecorder dialogs;
  const ZRKECVSManager manager(Product("car"));
  EXPECT_TRUE(Client.Runs().empty());
  EXPECT_TRUE(messages.All().empty());
  EXPECT_TRUE(dialogs.Requests().empty());
}

TEST(ConstructionWithoutClients, KnowsNoneAndTellsNothing) {
  CVSStage stage(InstalledClients::None);
  stage.Products.Add("car", "proj/car");
  const DialogRecorder dialogs;
  const ZRKECVSManager manager(stage.Product("car"));
  EXPECT_EQ(Text(manager.CVSExePath), "");
  EXPECT_EQ(Text(manager.SVNExePath), "");
  EXPECT_TRUE(dialogs.Requests().empty());
}
