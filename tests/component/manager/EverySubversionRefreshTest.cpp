// What holds of the refresh of a manager whose working copy is Subversion's, whichever form that has.

#include <gtest/gtest.h>

#include "ZRKICVSManager.h"
#include "attributes/AttributeDictionary.h"
#include "component/svn/DatabaseStage.h"
#include "manager/ZRKECVSManager.h"
#include "support/CapturedOutput.h"
#include "support/DebugMessages.h"
#include "support/DialogRecorder.h"

namespace {

struct FormCase {
  std::string Name;
  bool IsDatabase;
  // For one product.
  std::size_t Runs;
};

class EverySubversionRefresh : public DatabaseStage, public testing::WithParamInterface<FormCase> {
protected:
  EverySubversionRefresh() {
    Products.Add("car", "wc/car");
    Report({{.Path = "car"}});
    if (!GetParam().IsDatabase) WriteEntries("wc", entries::File(10, "car", "9", "bert"));
  }

  void Refresh() const { ZRKICVSManager_var(Products.At("car"))->RefreshStatus(nullptr); }
};

TEST_P(EverySubversionRefresh, TouchesNeitherTheCVSTablesNorTheCommunicationTimeNorStandardOutput) {
  ZRKECVSManager manager(*Products.At("car").Get());
  manager.StatusBlockTable.emplace("a", "block");
  manager.EditTable.emplace("b", "line");
  manager.CommTime = 7;
  const CapturedOutput output;
  manager.RefreshStatus(nullptr);
  EXPECT_EQ(manager.StatusBlockTable, (zrk::cvs::ReportTable{{"a", "block"}}));
  EXPECT_EQ(manager.EditTable, (zrk::cvs::ReportTable{{"b", "line"}}));
  EXPECT_EQ(manager.CommTime, 7);
  EXPECT_EQ(output.Bytes(), "");
}

TEST_P(EverySubversionRefresh, NeedsNoCVSAndShowsNoNotice) {
  ScriptedClient client(InstalledClients::SVNOnly);
  client.When("status").Out(reports::Report({{.Path = "car"}}));
  const DialogRecorder dialogs;
  Refresh();
  EXPECT_EQ(client.Runs().size(), GetParam().Runs);
  EXPECT_EQ(Shown("car")->Revision, "9");
  EXPECT_TRUE(dialogs.Requests().empty());
}

TEST_P(EverySubversionRefresh, WithoutSVNShowsNoNoticeAndWhatTheEntriesFileSays) {
  const ScriptedClient client(InstalledClients::CVSOnly);
  const DialogRecorder dialogs;
  const DebugMessages messages;
  Refresh();
  EXPECT_TRUE(client.Runs().empty());
  EXPECT_TRUE(dialogs.Requests().empty());
  const StatusAttributes ofTheEntries{"9", "ReadOnly", "", ""};
  EXPECT_EQ(Shown("car"), GetParam().IsDatabase ? std::nullopt : std::optional(ofTheEntries));
  // Two messages for each of the two runs, and the three times.
  ASSERT_EQ(messages.All().size(), 7U);
  EXPECT_EQ(messages.All()[2], L"CreateProcess failed\n");
  EXPECT_EQ(messages.All()[3], L"Create process failed with");
}

TEST_P(EverySubversionRefresh, WithoutAnAttributeDictionaryStillAsksAndRedraws) {
  standin::RemoveAttributeDictionary();
  Refresh();
  EXPECT_EQ(Client.Runs().size(), GetParam().Runs);
  EXPECT_EQ(Redrawn.Paths(), Texts{"car"});
}

INSTANTIATE_TEST_SUITE_P(Of, EverySubversionRefresh,
                         testing::Values(FormCase{"TextEntries", false, 2}, FormCase{"Database", true, 1}),
                         [](const auto& form) { return form.param.Name; });

}  // namespace
