// Which runs count into the time spent waiting for the client, and how.

#include <ostream>

#include "component/manager/SlowStep.h"
#include "component/operations/OperationTest.h"

namespace {

using standin::DialogAnswer;
using zrk::tools::Ticks;

// What stands there when the run begins: a time that no run takes.
constexpr Ticks kBefore = 1'000'000'000;

enum class Effect { None, Added, Replaced };
// Those that the client refuses, or that end with the news of a newer version, run nothing afterwards.
enum class Call { Edit, EditOfANewerVersion, RefusedEdit, RefusedUnedit, Remove, Query, Refresh };

struct Run {
  std::string Name;
  Call Operation;
  std::wstring Command;
  Effect Of;
};
const Run kRuns[] = {
    {"TheUpdateCheck", Call::EditOfANewerVersion, L"-q update", Effect::None},
    {"TheEdit", Call::RefusedEdit, L"-x edit", Effect::None},
    {"TheUnedit", Call::RefusedUnedit, L"-x unedit", Effect::None},
    {"TheRemoval", Call::Remove, L"remove", Effect::None},
    {"TheQuery", Call::Query, L"status -v", Effect::Added},
    {"TheQueryBehindAnEdit", Call::Edit, L"status -v", Effect::Added},
    {"TheEditPassOfTheStatusCheckOfAnUnedit", Call::RefusedUnedit, L"-n edit", Effect::Replaced},
    {"TheEditPassOfARefresh", Call::Refresh, L"-n edit", Effect::Replaced}};

std::ostream& operator<<(std::ostream& stream, const Run& run) {
  return stream << run.Name;
}

class CommTime : public OperationTest {
protected:
  ~CommTime() override { standin::SetLaunchListener({}); }

  void Invoke(Call operation) {
    const CapturedOutput quiet;
    ZRKCVSStatus record;
    switch (operation) {
      case Call::Edit:
        Manager().Edit();
        break;
      case Call::EditOfANewerVersion:
        Client.When("update").Out("U a\r\n");
        Manager().Edit();
        break;
      case Call::RefusedEdit:
        Client.When("-x edit").Out("refused\r\n");
        Manager().Edit();
        break;
      case Call::RefusedUnedit:
        Client.When("status -v").Out(StatusReport());
        Client.When("unedit").Out("refused\r\n");
        Manager().Unedit();
        break;
      case Call::Remove:
        Manager().CVSRemove(Folder.Host("a.txt").c_str());
        break;
      case Call::Query:
        Manager().GetFileStatus(CATIProduct_var(Car()), record);
        break;
      case Call::Refresh:
        Manager().RefreshStatus(Car());
        break;
    }
  }
};

class CommTimeOf : public CommTime, public testing::WithParamInterface<Run> {};

TEST_P(CommTimeOf, Run) {
  const auto& run = GetParam();
  Manager();
  SlowTimes times;
  standin::SetLaunchListener([&](const standin::Launch& launch) {
    if (launch.CommandLine.find(run.Command) == std::wstring::npos) return;
    Manager().CommTime = kBefore;
    slow_step::Take(times);
  });
  slow_step::Measure(times, [&] { Invoke(run.Operation); });
  ASSERT_EQ(times.Steps, 1);
  const Ticks counted = Manager().CommTime - (run.Of == Effect::Replaced ? 0 : kBefore);
  EXPECT_GE(counted, run.Of == Effect::None ? 0 : times.Within);
  EXPECT_LE(counted, run.Of == Effect::None ? 0 : times.Within + times.Outside);
}

INSTANTIATE_TEST_SUITE_P(Run, CommTimeOf, testing::ValuesIn(kRuns),
                         [](const auto& run) { return run.param.Name; });

TEST_F(CommTime, TheStatusPassIsAddedUntilTheEditPassReplacesIt) {
  for (const Call operation : {Call::RefusedUnedit, Call::Refresh}) {
    Ticks atEditPass = 0;
    Manager().CommTime = kBefore;
    SlowTimes times;
    standin::SetLaunchListener([&](const standin::Launch& launch) {
      if (launch.CommandLine.find(L"status -v") != std::wstring::npos) slow_step::Take(times);
      if (launch.CommandLine.find(L"-n edit") != std::wstring::npos) atEditPass = Manager().CommTime;
    });
    slow_step::Measure(times, [&] { Invoke(operation); });
    EXPECT_EQ(times.Steps, 1);
    EXPECT_GE(atEditPass, kBefore + times.Within);
    EXPECT_GE(Manager().CommTime, 0);
    EXPECT_LE(Manager().CommTime, times.Outside);
  }
}

TEST_F(CommTime, TheSecondStatusCheckOfUneditReplacesItAgain) {
  Client.When("status -v").Out(StatusReport());
  Client.When("unedit").Out("revert changes?");
  AnswerQuestions({DialogAnswer::Yes});
  User().WhileShown([this] { Manager().CommTime = kBefore; });
  EXPECT_EQ(Manager().Unedit(), 0);
  EXPECT_GE(Manager().CommTime, 0);
  EXPECT_LT(Manager().CommTime, kBefore);
}

TEST_F(CommTime, TheAnswerDoesNotCount) {
  Client.When("status -v").Out(StatusReport());
  Client.When("unedit").Out("revert changes?").Read().Repeat(2'000'000, "takes a while ");
  AnswerQuestions({DialogAnswer::No});
  User().WhileShown([this] { Manager().CommTime = kBefore; });
  EXPECT_EQ(Manager().Unedit(), 1);
  EXPECT_EQ(Manager().CommTime, kBefore);
}

TEST_F(CommTime, StaysWhenARefreshStopsBeforeTheClientRuns) {
  Manager().CommTime = kBefore;
  Manager().RefreshStatus(nullptr);
  EXPECT_EQ(Manager().CommTime, kBefore);
}

}  // namespace
