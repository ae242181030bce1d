#include <gtest/gtest.h>

#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "ZRKICVSManager.h"
#include "component/manager/CVSStage.h"
#include "component/svn/SampleEntries.h"
#include "support/CapturedOutput.h"
#include "support/DialogRecorder.h"
#include "support/Files.h"
#include "support/HandleCount.h"

namespace {

struct Operation {
  std::string Name;
  HRESULT Expected;
  std::function<HRESULT()> Do;
};

// What an operation gave, and the handles that were open then.
struct Outcome {
  std::string Name;
  HRESULT Result;
  int Handles;

  bool operator==(const Outcome&) const = default;
};

std::ostream& operator<<(std::ostream& stream, const Outcome& outcome) {
  return stream << outcome.Name << " gave " << outcome.Result << " with " << outcome.Handles << " handles";
}

// "car" in a CVS working copy and "wheel" in a Subversion one, with clients that answer all commands. What
// the first run of a process opens for good is open from here on.
class OperationsOfTheInterface : public testing::Test, protected CVSStage {
protected:
  OperationsOfTheInterface() {
    using namespace entries;
    Products.Add("car", "proj/car").Add("wheel", "wc/wheel");
    WriteFile(Folder / "wc" / ".svn" / "entries",
              Format(10) + File(10, "wheel", "9", "bert", {kToken, "anna", "", ""}));
    Client.When("status -v").Program("cvs.exe").Out(zrk::sample::StatusBlock("proj/car", "1.1"));
    Client.When("unedit").Out("car has been modified; revert changes? ").Read();
    car_ = Products.At("car");
    wheel_ = Products.At("wheel");
    ZRKECVSManager firstOfTheProcess(Product("car"));
    firstOfTheProcess.RefreshStatus(Root("car"));
  }

  // In an order in which a user might call them.
  std::vector<Operation> Operations() {
    return {
        {"refresh", S_OK, [&] { return car_->RefreshStatus(Products.At("car")), S_OK; }},
        {"query", S_OK, [&] { return car_->GetFileStatus(Products.At("car"), record_), S_OK; }},
        {"edit", S_OK, [&] { return car_->Edit(); }},
        {"unedit that is declined", 1, [&] { return car_->Unedit(); }},
        {"remove", S_OK, [&] { return car_->CVSRemove(Folder.Host("proj/gone").c_str()); }},
        {"communication time", S_OK, [&] { return car_->PrintCommTime(); }},
        {"Subversion refresh", S_OK, [&] { return wheel_->RefreshStatus(nullptr), S_OK; }},
        {"lock", S_OK, [&] { return wheel_->Edit(); }},
        {"unlock", S_OK, [&] { return wheel_->Unedit(); }},
        {"delete", S_OK, [&] { return wheel_->SVNDelete(Folder.Host("wc/gone").c_str()); }},
    };
  }

  // Does all of them that often, and expects the handles each time as they were.
  void ExpectSameHandles(int times) {
    const std::vector<Operation> operations = Operations();
    std::vector<Outcome> outcomes;
    std::vector<Outcome> expected;
    {
      // A failure that is reported in here would be captured too.
      const CapturedOutput quiet;
      const int before = CountOpenHandles();
      for (int i = 0; i < times; ++i) {
        for (const Operation& operation : operations) {
          const HRESULT result = operation.Do();
          outcomes.push_back({operation.Name, result, CountOpenHandles()});
          expected.push_back({operation.Name, operation.Expected, before});
        }
      }
    }
    EXPECT_EQ(outcomes, expected);
  }

  const DialogRecorder dialogs_;
  ZRKICVSManager_var car_;
  ZRKICVSManager_var wheel_;
  ZRKCVSStatus record_;
};

}  // namespace

TEST_F(OperationsOfTheInterface, LeaveNoHandleOpen) {
  ExpectSameHandles(1);
}

TEST_F(OperationsOfTheInterface, AHundredOfThemLeaveTheHandlesOfTheProcessAsTheyWere) {
  ExpectSameHandles(10);
}
