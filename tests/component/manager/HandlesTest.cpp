#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "ZRKICVSManager.h"
#include "component/manager/CVSStage.h"
#include "component/svn/SampleEntries.h"
#include "support/CapturedOutput.h"
#include "support/ClientReports.h"
#include "support/DialogRecorder.h"
#include "support/Files.h"
#include "support/HandleCount.h"

namespace {

using standin::DialogAnswer;

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

// "car" and "bus" in a CVS working copy, "wheel" in a Subversion one with text entries and "bolt" in
// one with a database, with clients that answer all commands; the repository of the last is out of reach for
// a refresh. What the first run of a process opens for good is open from here on.
class HandlesOfTheOperations : public testing::Test, protected CVSStage {
protected:
  HandlesOfTheOperations() {
    using namespace entries;
    Products.Add("car", "proj/car").Add("bus", "proj/bus").Add("wheel", "wc/wheel");
    Products.Add("bolt", "db/bolt");
    WriteFile(Folder / "db" / ".svn" / "wc.db", "SQLite format 3");
    WriteFile(Folder / "db" / ".svn" / "entries", "12\n");
    Client.When("--ignore-externals " + Folder.Host("db/bolt")).Out(reports::Report({{.Path = "bolt"}}));
    WriteFile(Folder / "wc" / ".svn" / "entries",
              Format(10) + File(10, "wheel", "9", "bert", {kToken, "anna", "", ""}));
    Client.When("status -v").Program("cvs.exe").Out(zrk::sample::StatusBlock("proj/car", "1.1"));
    Client.When("unedit").Out("car has been modified; revert changes? ").Read();
    Client.When("-x edit -z -c proj\\bus").Out("bus has been modified; revert changes? ").ReadAll();
    car_ = Products.At("car");
    bus_ = Products.At("bus");
    wheel_ = Products.At("wheel");
    bolt_ = Products.At("bolt");
    ZRKECVSManager firstOfTheProcess(Product("car"));
    firstOfTheProcess.RefreshStatus(Root("car"));
  }

  // In an order in which a user might call them.
  std::vector<Operation> Operations() {
    return {
        {"refresh", S_OK, [&] { return car_->RefreshStatus(Products.At("car")), S_OK; }},
        {"query", S_OK, [&] { return car_->GetFileStatus(Products.At("car"), record_), S_OK; }},
        {"edit", S_OK, [&] { return car_->Edit(); }},
        {"unedit that is declined", 1, [&] { return UneditWith(DialogAnswer::No); }},
        {"unedit that cannot ask", S_OK, [&] { return UneditWithoutAWindow(); }},
        {"unedit that is accepted", S_OK, [&] { return UneditWith(DialogAnswer::Yes); }},
        {"edit that the client asks about", 1, [&] { return bus_->Edit(); }},
        {"remove", S_OK, [&] { return car_->CVSRemove(Folder.Host("proj/gone").c_str()); }},
        {"communication time", S_OK, [&] { return car_->PrintCommTime(); }},
        {"Subversion refresh", S_OK, [&] { return wheel_->RefreshStatus(nullptr), S_OK; }},
        {"lock", S_OK, [&] { return wheel_->Edit(); }},
        {"unlock", S_OK, [&] { return wheel_->Unedit(); }},
        {"delete", S_OK, [&] { return wheel_->SVNDelete(Folder.Host("wc/gone").c_str()); }},
        {"database refresh", S_OK, [&] { return bolt_->RefreshStatus(nullptr), S_OK; }},
        {"database query", S_OK, [&] { return bolt_->GetFileStatus(Products.At("bolt"), record_), S_OK; }},
        {"database lock", S_OK, [&] { return bolt_->Edit(); }},
        {"database unlock", S_OK, [&] { return bolt_->Unedit(); }},
        {"database delete", S_OK, [&] { return bolt_->SVNDelete(Folder.Host("db/gone").c_str()); }},
    };
  }

  HRESULT UneditWith(DialogAnswer answer) {
    user_.reset();
    user_.emplace(std::deque{answer});
    return car_->Unedit();
  }
  HRESULT UneditWithoutAWindow() {
    standin::SetApplicationFrame(false, false);
    const HRESULT result = car_->Unedit();
    standin::SetApplicationFrame(true, true);
    return result;
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

  std::optional<DialogRecorder> user_{std::in_place};
  ZRKICVSManager_var car_;
  ZRKICVSManager_var bus_;
  ZRKICVSManager_var wheel_;
  ZRKICVSManager_var bolt_;
  ZRKCVSStatus record_;
};

}  // namespace

TEST_F(HandlesOfTheOperations, LeaveNoHandleOpen) {
  ExpectSameHandles(1);
}

TEST_F(HandlesOfTheOperations, AHundredOfThemLeaveTheHandlesOfTheProcessAsTheyWere) {
  ExpectSameHandles(10);
}
