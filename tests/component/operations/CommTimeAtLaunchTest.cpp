#include "component/manager/SlowStep.h"
#include "component/operations/OperationTest.h"
#include "windows/LaunchLog.h"

// The communication time as it stands at the moment of a launch.

namespace {

class CommTimeAtLaunch : public OperationTest {
protected:
  ~CommTimeAtLaunch() override { standin::SetLaunchListener({}); }

  // The time that stands there when a command is launched is set to a number that no run takes.
  void SetWhenLaunched(const wchar_t* command, zrk::tools::Ticks ticks) {
    standin::SetLaunchListener([this, command, ticks](const standin::Launch& launch) {
      if (launch.CommandLine.find(command) != std::wstring::npos) Manager().CommTime = ticks;
    });
  }
};

}  // namespace

TEST_F(CommTimeAtLaunch, TheUneditDoesNotCount) {
  Client.When("status -v").Out(StatusReport());
  Client.When("unedit").Repeat(2'000'000, "takes a while ");
  SetWhenLaunched(L"unedit", 5);
  EXPECT_EQ(Manager().Unedit(), 1);
  EXPECT_EQ(Manager().CommTime, 5);
}

TEST_F(CommTimeAtLaunch, TheStatusPassIsAddedAndTheEditPassReplacesIt) {
  SetReadOnly(Document());
  Client.When("status -v").Out(StatusReport());
  constexpr zrk::tools::Ticks before = 1'000'000'000;
  zrk::tools::Ticks atEditPass = 0;
  Stretch statusPass{};
  Manager().CommTime = before;
  standin::SetLaunchListener([&](const standin::Launch& launch) {
    if (launch.CommandLine.find(L"-n edit") == std::wstring::npos) {
      statusPass = LetTimePass();
    } else {
      atEditPass = Manager().CommTime;
    }
  });
  EXPECT_EQ(Manager().Unedit(), E_FAIL);
  const std::clock_t sinceStatusPass = std::clock() - statusPass.End;
  EXPECT_GE(atEditPass, before + statusPass.Length());
  EXPECT_GE(Manager().CommTime, 0);
  EXPECT_LE(Manager().CommTime, sinceStatusPass);
}
