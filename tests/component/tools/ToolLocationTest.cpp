#include "tools/ToolLocation.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "manager/ZRKECVSManager.h"
#include "support/Assembly.h"
#include "support/DebugMessages.h"
#include "support/DialogRecorder.h"
#include "support/EnvironmentVariable.h"
#include "support/ScriptedClient.h"
#include "support/Session.h"
#include "support/TemporaryFolder.h"

namespace {

class ToolLocation : public testing::Test {
protected:
  ToolLocation() { assembly_.Add("car", "car.CATProduct"); }

  Session session_;
  DialogRecorder dialogs_;
  TemporaryFolder folder_;
  Assembly assembly_{folder_};
};

}  // namespace

TEST_F(ToolLocation, BothClientsAreFoundAlongThePath) {
  const ScriptedClient client;
  const CATBaseUnknown_var car = assembly_.At("car");
  ZRKECVSManager manager(*car);
  EXPECT_EQ(manager.CVSExePath.ConvertToChar(), client.HostPath("cvs.exe"));
  EXPECT_EQ(manager.SVNExePath.ConvertToChar(), client.HostPath("svn.exe"));
  EXPECT_EQ(manager.CheckCVSToolPath(), 1);
  EXPECT_TRUE(dialogs_.Requests().empty());
}

TEST_F(ToolLocation, WithoutSubversionNothingIsShown) {
  const ScriptedClient client(InstalledClients::CVSOnly);
  const CATBaseUnknown_var car = assembly_.At("car");
  ZRKECVSManager manager(*car);
  EXPECT_STREQ(manager.SVNExePath.ConvertToChar(), "");
  EXPECT_EQ(manager.CheckCVSToolPath(), 1);
  EXPECT_TRUE(dialogs_.Requests().empty());
}

TEST_F(ToolLocation, WithoutSubversionItsCommandsAreTriedAndFailOnTheDebuggerChannel) {
  const ScriptedClient client(InstalledClients::CVSOnly);
  const CATBaseUnknown_var car = assembly_.At("car");
  ZRKECVSManager manager(*car);
  manager.IsSVN = true;
  const DebugMessages messages;
  CATUnicodeString output;
  manager.RunTool("status", folder_.Host().c_str(), output);
  EXPECT_EQ(messages.All(),
            (std::vector<std::wstring>{L"CreateProcess failed\n", L"Create process failed with"}));
}

TEST_F(ToolLocation, WithoutCVSTheManagerIsMadeAndWarnsWhenItIsAsked) {
  const ScriptedClient client(InstalledClients::SVNOnly);
  const CATBaseUnknown_var car = assembly_.At("car");
  ZRKECVSManager manager(*car);
  EXPECT_STREQ(manager.CVSExePath.ConvertToChar(), "");
  EXPECT_EQ(manager.SVNExePath.ConvertToChar(), client.HostPath("svn.exe"));
  EXPECT_TRUE(dialogs_.Requests().empty());
  EXPECT_EQ(manager.CheckCVSToolPath(), 0);
  EXPECT_EQ(manager.CheckCVSToolPath(), 0);
  EXPECT_EQ(dialogs_.Requests().size(), 2u);
}

TEST_F(ToolLocation, IsSettledWhenTheManagerIsMade) {
  const CATBaseUnknown_var car = assembly_.At("car");
  std::optional<ScriptedClient> client(InstalledClients::None);
  ZRKECVSManager manager(*car);
  client.emplace(InstalledClients::Both);
  EXPECT_EQ(manager.CheckCVSToolPath(), 0);
}

TEST_F(ToolLocation, ARunDoesNotCountIntoTheTimeItself) {
  const ScriptedClient client;
  const CATBaseUnknown_var car = assembly_.At("car");
  ZRKECVSManager manager(*car);
  manager.CommTime = 7;
  CATUnicodeString output;
  manager.RunTool("status", folder_.Host().c_str(), output);
  EXPECT_EQ(client.Runs().size(), 1u);
  EXPECT_EQ(manager.CommTime, 7);
}
