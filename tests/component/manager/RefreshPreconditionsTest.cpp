#include <gtest/gtest.h>

#include "attributes/AttributeDictionary.h"
#include "component/attributes/OutputText.h"
#include "component/manager/CVSStage.h"
#include "component/product/ProductEvents.h"
#include "support/DebugMessages.h"
#include "support/DialogRecorder.h"
#include "support/Files.h"
#include "support/HostText.h"

namespace {

// Nothing was run, written, shown or reported by a refresh.
class NothingDone {
public:
  NothingDone(const ScriptedClient& client, ZRKECVSManager& manager) : client_(client), manager_(manager) {
    manager.StatusBlockTable["key"] = "block";
    manager.EditTable["key"] = "line";
  }

  void Expect() const {
    EXPECT_TRUE(client_.Runs().empty());
    EXPECT_TRUE(messages_.All().empty());
    EXPECT_TRUE(redrawn_.Paths().empty());
    EXPECT_EQ(OutputText(output_), "");
    EXPECT_EQ(manager_.StatusBlockTable, (zrk::cvs::ReportTable{{"key", "block"}}));
    EXPECT_EQ(manager_.EditTable, (zrk::cvs::ReportTable{{"key", "line"}}));
  }

private:
  const ScriptedClient& client_;
  ZRKECVSManager& manager_;
  const DebugMessages messages_;
  const RedrawnProducts redrawn_;
  const CapturedOutput output_;
};

class RefreshPreconditions : public testing::Test, protected CVSStage {
protected:
  const DialogRecorder dialogs_;
};

}  // namespace

TEST_F(RefreshPreconditions, WithoutARoot) {
  Products.Add("car", "proj/car");
  ZRKECVSManager manager(Product("car"));
  const NothingDone nothing(Client, manager);
  manager.RefreshStatus(nullptr);
  nothing.Expect();
  EXPECT_TRUE(dialogs_.Requests().empty());
}

TEST_F(RefreshPreconditions, WithoutARootAndWithoutAWorkingCopy) {
  Products.AddWithoutDocument("empty");
  ZRKECVSManager manager(Product("empty"));
  const NothingDone nothing(Client, manager);
  manager.RefreshStatus(nullptr);
  nothing.Expect();
}

TEST_F(RefreshPreconditions, WithoutAnAttributeClass) {
  standin::RemoveAttributeDictionary();
  Products.Add("car", "proj/car");
  ZRKECVSManager manager(Product("car"));
  const NothingDone nothing(Client, manager);
  manager.RefreshStatus(Root("car"));
  nothing.Expect();
}

TEST_F(RefreshPreconditions, WithoutAWorkingCopy) {
  Products.Add("car", "elsewhere/car");
  ZRKECVSManager manager(Product("car"));
  const NothingDone nothing(Client, manager);
  manager.RefreshStatus(Root("car"));
  nothing.Expect();
}

TEST_F(RefreshPreconditions, WhereTheRepositoryPathIsNotThatOfTheFolder) {
  WriteCVSFolder(Folder / "moved", zrk::sample::kCVSRoot, "another/name");
  Products.Add("car", "moved/car");
  ZRKECVSManager manager(Product("car"));
  const NothingDone nothing(Client, manager);
  manager.RefreshStatus(Root("car"));
  nothing.Expect();
}

TEST_F(RefreshPreconditions, WithoutARootFile) {
  WriteFile(Folder / "rootless/CVS/Repository", "rootless\n");
  Products.Add("car", "rootless/car");
  ZRKECVSManager manager(Product("car"));
  const NothingDone nothing(Client, manager);
  manager.RefreshStatus(Root("car"));
  nothing.Expect();
  EXPECT_EQ(Text(manager.SandboxRoot), SandboxRoot());
}

TEST(RefreshWithoutCVS, ShowsTheNoticeAndDoesNothing) {
  CVSStage stage(InstalledClients::SVNOnly);
  stage.Products.Add("car", "proj/car");
  ZRKECVSManager manager(stage.Product("car"));
  const NothingDone nothing(stage.Client, manager);
  const DialogRecorder dialogs;
  manager.RefreshStatus(stage.Root("car"));
  nothing.Expect();
  ASSERT_EQ(dialogs.Requests().size(), 1u);
  EXPECT_EQ(dialogs.Requests()[0].Message, "Path of cvs.exe is not specified");
  EXPECT_EQ(dialogs.Requests()[0].Title, "Version Control");
}

TEST(RefreshWithoutCVS, DoesNotEvenLookForTheWorkingCopy) {
  CVSStage stage(InstalledClients::None);
  stage.Products.AddWithoutDocument("empty").Add("car", "proj/car");
  ZRKECVSManager manager(stage.Product("empty"));
  manager.RefreshStatus(stage.Root("car"));
  EXPECT_EQ(Text(manager.SandboxRoot), "");
}

TEST(RefreshWithoutCVS, ShowsTheNoticeWithoutARootToo) {
  CVSStage stage(InstalledClients::None);
  stage.Products.Add("car", "proj/car");
  ZRKECVSManager manager(stage.Product("car"));
  const DialogRecorder dialogs;
  manager.RefreshStatus(nullptr);
  EXPECT_EQ(dialogs.Requests().size(), 1u);
}
